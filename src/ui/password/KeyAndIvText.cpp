#include "ui/password/KeyAndIvText.h"

#include "lib/secret/Hex.h"

#include <initializer_list>
#include <string_view>

namespace thisapp {

using namespace tessaly;

SecretText keyAndIvText(const QString& algorithmName, const SecretBytes& key, const SecretBytes& iv)
{
    const QByteArray name = algorithmName.toUtf8();
    const SecretText keyText = encodeHex(key);
    const SecretText ivText = encodeHex(iv);
    SecretBytes text;
    for (const std::string_view part :
         {std::string_view("Quillet key and initialization vector\nAlgorithm: "),
          std::string_view(name.constData(), static_cast<std::size_t>(name.size())),
          std::string_view("\nInitialization vector (IV): "), ivText.view(), std::string_view("\nKey: "),
          keyText.view(), std::string_view("\n")})
        text.append(part.begin(), part.end());
    return SecretText({reinterpret_cast<const char*>(text.data()), text.size()});
}

} // namespace thisapp
