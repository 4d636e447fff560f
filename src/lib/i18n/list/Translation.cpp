#include "lib/i18n/list/Translation.h"

#include "lib/i18n/list/WordTest.h"

namespace tessaly::i18n::internal {

bool Translation::isEnabled() const
{
    return readYesNo(disabled) != true;
}

} // namespace tessaly::i18n::internal
