// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <locale>

#include "support/asked_locale.h"

#ifdef __SANITIZE_ADDRESS__
/// The C library never gives back the list of folders that LOCPATH names.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:__argz_add_sep";
}
#endif

/// The tests run in the user's locale, as the programs do.
int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    std::locale::global(std::locale(""));
    if (!idrova::LocaleIsAsAsked()) return EXIT_FAILURE;
    return RUN_ALL_TESTS();
}
