// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/limit_texts.h"

#include "base/number_text.h"
#include "model/settings.h"

namespace idrova {
namespace {

std::string TextOf(const std::optional<double>& limit, double unit) {
    return limit ? GeneralText(*limit / unit) : "";
}

class Reader {
  public:
    std::optional<double> Read(const std::string& text, double unit) {
        if (text.find_first_not_of(' ') == std::string::npos) return std::nullopt;
        const auto number = ParseNumber(text);
        if (!number) faulty_ = true;
        return number ? std::optional(*number * unit) : std::nullopt;
    }
    bool IsFaulty() const { return faulty_; }

  private:
    bool faulty_ = false;
};

}  // namespace

LimitTexts ShowLimits(const Limits& limits, double pascal) {
    return {TextOf(limits.velocity, 1), TextOf(limits.loss, 1),
            TextOf(limits.lowestPressure, pascal), TextOf(limits.highestPressure, pascal)};
}

std::optional<Limits> ReadLimits(const LimitTexts& typed, double pascal) {
    Reader reader;
    const Limits limits{reader.Read(typed.velocity, 1), reader.Read(typed.loss, 1),
                        reader.Read(typed.lowestPressure, pascal),
                        reader.Read(typed.highestPressure, pascal)};
    if (reader.IsFaulty()) return std::nullopt;
    return limits;
}

std::string LimitWords(const Limits& limits) {
    std::string words;
    const auto add = [&words](const std::optional<double>& limit, const char* what, double unit,
                              const char* unitName) {
        if (!limit) return;
        words +=
            (words.empty() ? "" : ", ") + std::string(what) + PlainText(*limit / unit) + unitName;
    };
    add(limits.velocity, "velocity ", 1, " m/s");
    add(limits.loss, "losses ", 1, " Pa/m");
    add(limits.lowestPressure, "lowest pressure ", kPascalPerBar, " bar");
    add(limits.highestPressure, "highest pressure ", kPascalPerBar, " bar");
    return words.empty() ? "none" : words;
}

}  // namespace idrova
