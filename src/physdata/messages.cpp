// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/messages.h"

#include "base/number_text.h"
#include "base/record_file.h"

namespace idrova {
namespace {

std::string KeptNote(std::string_view file) {
    return ". The file is kept as " + std::string(file) +
           ".bak, or .bak1 and so on, when the database is changed";
}

}  // namespace

MessageBox BadName(std::size_t nameLimit, std::string_view title) {
    const std::string limit = GeneralText(static_cast<int>(nameLimit));
    return {
        "The name can have " + limit + " characters at most, of western European languages only",
        title, BoxIcon::Exclamation};
}

MessageBox DamagedDatabase(std::string_view file, int goodRecords, std::string_view title) {
    return {std::string(file) + " is damaged. Records that could be read: " +
                GeneralText(goodRecords) + KeptNote(file),
            title, BoxIcon::Exclamation};
}

MessageBox TooManyRecords(std::string_view file, std::string_view title) {
    const std::string limit = GeneralText(static_cast<int>(kMaxRecords));
    return {std::string(file) + " is too long: only the first " + limit + " records are read" +
                KeptNote(file),
            title, BoxIcon::Exclamation};
}

}  // namespace idrova
