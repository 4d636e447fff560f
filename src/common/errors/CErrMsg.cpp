#include "common/errors/CErrMsg.h"

#include "common/errors/ErrorTexts.h"
#include "lib/err/ErrorCodes.h"

#include <QCoreApplication>
#include <QString>

namespace thisapp {

bool CErrMsg::lookup(std::uint32_t category, std::uint32_t code, std::string& text) const
{
    using namespace tessaly;
    if (!ErrorTexts().lookup(category, code, text))
        return false;
    const QString shown = category == err::CategorySystem
                              ? QString::fromStdString(text).trimmed()
                              : QCoreApplication::translate("CErrMsg", text.c_str());
    text = shown.toStdString();
    return true;
}

} // namespace thisapp
