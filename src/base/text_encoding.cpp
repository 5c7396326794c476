// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/text_encoding.h"

#include <array>
#include <cstdint>

namespace idrova {
namespace {

struct Character {
    char32_t code = 0;
    std::size_t bytes = 0;  ///< 0 when the bytes are not valid UTF-8
};

std::size_t SequenceLength(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead < 0xE0) return 2;
    if (lead >= 0xE0 && lead < 0xF0) return 3;
    if (lead >= 0xF0 && lead < 0xF5) return 4;
    return 0;
}

bool IsCharacterCode(char32_t code, std::size_t bytes) {
    constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = code >= 0xD800 && code < 0xE000;
    return code >= smallest[bytes] && code <= 0x10FFFF && !surrogate;
}

Character Decode(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = SequenceLength(lead);
    if (length == 0 || length > text.size()) return {};
    if (length == 1) return {lead, 1};
    char32_t code = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80U) return {};
        code = (code << 6U) | (next & 0x3FU);
    }
    return IsCharacterCode(code, length) ? Character{code, length} : Character{};
}

}  // namespace

std::optional<std::string> ToLatin1(std::string_view utf8) {
    std::string latin1;
    while (!utf8.empty()) {
        const Character character = Decode(utf8);
        if (character.bytes == 0 || character.code > 0xFF) return std::nullopt;
        latin1 += static_cast<char>(character.code);
        utf8.remove_prefix(character.bytes);
    }
    return latin1;
}

std::string FromLatin1(std::string_view latin1) {
    std::string utf8;
    for (const char c : latin1) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x80) {
            utf8 += c;
        } else {
            utf8 += static_cast<char>(0xC0U | (code >> 6U));
            utf8 += static_cast<char>(0x80U | (code & 0x3FU));
        }
    }
    return utf8;
}

bool IsUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const Character character = Decode(bytes);
        if (character.bytes == 0) return false;
        bytes.remove_prefix(character.bytes);
    }
    return true;
}

std::size_t Utf8Length(std::string_view utf8) {
    std::size_t length = 0;
    while (!utf8.empty()) {
        const Character character = Decode(utf8);
        utf8.remove_prefix(character.bytes == 0 ? 1 : character.bytes);
        ++length;
    }
    return length;
}

}  // namespace idrova
