#include "lib/i18n/Translation.h"

#include "lib/i18n/WordTest.h"

namespace tessaly::i18n::internal {

bool Translation::isEnabled() const
{
    return readYesNo(disabled) != true;
}

} // namespace tessaly::i18n::internal
