// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <regex>
#include <string>
#include <vector>

namespace idrova {

/// What is wrong with the first element, attribute or character of an XML text that is not well
/// formed; empty for one that is. Knows what the program writes: no comments, no CDATA.
inline std::string MarkupFault(const std::string& xml) {
    static const std::regex tag(R"re(<(/?)([\w:]+)((?:\s[\w:-]+="[^"<]*")*)\s*(/?)>)re");
    static const std::regex reference("&(amp|lt|gt|quot|#[0-9]+);");
    std::vector<std::string> open;
    std::size_t at = xml.starts_with("<!DOCTYPE html>") ? 15 : 0;
    for (const char c : xml) {
        if (static_cast<unsigned char>(c) < ' ' && c != '\n' && c != '\t')
            return "control character";
    }
    for (; at < xml.size(); ++at) {
        const auto from = xml.begin() + static_cast<std::ptrdiff_t>(at);
        std::smatch match;
        const auto flag = std::regex_constants::match_continuous;
        if (xml[at] == '&' && !std::regex_search(from, xml.end(), match, reference, flag)) {
            return "stray & at " + xml.substr(at, 20);
        }
        if (xml[at] != '<') continue;
        if (!std::regex_search(from, xml.end(), match, tag, flag)) {
            return "bad tag " + xml.substr(at, 60);
        }
        const std::string name = match[2];
        if (match[1].length() > 0) {
            if (open.empty() || open.back() != name) return "unexpected end of " + name;
            open.pop_back();
        } else if (match[4].length() == 0) {
            open.push_back(name);
        }
        at += static_cast<std::size_t>(match.length()) - 1;
    }
    return open.empty() ? "" : "no end of " + open.back();
}

}  // namespace idrova
