// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/markup_text.h"

#include "base/text_encoding.h"

namespace idrova {
namespace {

std::string MarkupCharacter(char c) {
    switch (c) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '"':
            return "&quot;";
        default:
            return {static_cast<unsigned char>(c) < ' ' ? ' ' : c};
    }
}

}  // namespace

std::string MarkupText(std::string_view text) {
    std::string markup;
    for (const char c : IsUtf8(text) ? std::string(text) : FromLatin1(text)) {
        markup += MarkupCharacter(c);
    }
    return markup;
}

std::string CsvField(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"') quoted += '"';
        quoted += c;
    }
    return quoted + '"';
}

}  // namespace idrova
