// Prints the locale catalogue: LCID, tag and display name, separated by tabs.
#include "lib/i18n/locale/LocaleCatalogue.h"

#include <iostream>

int main()
{
    for (const auto& locale : tessaly::i18n::locales())
        std::cout << locale.lcid << '\t' << locale.tag << '\t' << locale.displayName << '\n';
}
