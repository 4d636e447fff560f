// Names of files that no text can hold: whatever bytes a name has, it comes back from the texts of the user
// interface and from the URLs of file managers.

#include "common/path/PathText.h"
#include "common/path/UrlPath.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/Text.h"
#include "lib/platform/Path.h"

#include <cstdint>
#include <string>

using namespace fuzz;
using namespace thisapp;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string name(text(data, size));
    if (name.find('\0') != std::string::npos)
        return 0;
    const QString shown = pathText(name);
    require(textPath(shown).native() == name, "the text leads back to the name");
    require(tessaly::platform::nativePath(tessaly::platform::widePath(name)) == name,
            "the wide name leads back to the name");
    const QByteArray bytes = QByteArray::fromStdString(name);
    if (const QString decoded = QString::fromUtf8(bytes); decoded.toUtf8() == bytes)
        require(shown == decoded, "a name in UTF-8 is shown as it is");

    const QByteArray path = '/' + bytes;
    require(textPath(urlPath(QUrl::fromEncoded("file://" + path.toPercentEncoding("/")))).native() ==
                path.toStdString(),
            "the URL leads back to the name");
    (void)textPath(urlPath(QUrl::fromEncoded(bytes)));
    (void)textPath(
        QString::fromUtf16(reinterpret_cast<const char16_t*>(name.c_str()), static_cast<int>(size / 2)));
    return 0;
}
