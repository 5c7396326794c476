// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <locale>

#include "support/asked_locale.h"

/// The tests run in the user's locale, as the programs do.
int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    std::locale::global(std::locale(""));
    if (!idrova::LocaleIsAsAsked()) return EXIT_FAILURE;
    return RUN_ALL_TESTS();
}
