#include "common/errors/ErrorText.h"

#include "common/errors/CErrMsg.h"
#include "lib/err/CErrMsgBuilder.h"

namespace thisapp {

QString errorText(const tessaly::crypto::CryptoResult& result)
{
    const CErrMsg texts;
    const tessaly::err::internal::CErrMsgBuilder<char> builder(texts);
    return QString::fromStdString(builder.build({}, result.first(), result.second()));
}

} // namespace thisapp
