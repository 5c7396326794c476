// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "table/table_block.h"
#include "table/table_checks.h"
#include "table/table_edit.h"
#include "table/table_rows.h"

namespace idrova {

/// A table that is edited by scripts, and lists of them.
class TableScript : public testing::Test {
  protected:
    /// Steps, parted by ";". "5.2=1.5" types into row 5, column 2; "5.2<1 2/3 4" pastes cells and
    /// lines from there on, "5.2-6.4<1" into a block; "5.2-6.4v" fills it down, "5.2-6.4x" clears
    /// it; "5+2" inserts rows, "5-6x" deletes them, "^" closes up.
    void Do(const std::string& script) {
        std::istringstream steps(script);
        for (std::string step; std::getline(steps, step, ';');) DoStep(step);
    }

    /// "5.2 5.4" gives the texts of these cells, "1.5||".
    std::string Shown(const std::string& cells) const {
        std::istringstream list(cells);
        std::string shown;
        for (std::string cell; list >> cell;) {
            const int row = static_cast<int>(ReadNumber(cell.substr(0, cell.find('.'))));
            const int column = static_cast<int>(ReadNumber(cell.substr(cell.find('.') + 1)));
            shown += texts.At(row, column) + "|";
        }
        return shown;
    }

    void Clear() {
        project->TableRows.fill({});
        project->settings.PressureUnitFactor = kPascalPerBar;
        texts = TableTexts();
    }

    TableRowRec& Row(int row) { return project->TableRows[row]; }

    /// The lines of a list of cases, taken apart at " # ".
    static std::vector<std::vector<std::string>> Cases(const std::string& list) {
        std::vector<std::vector<std::string>> cases;
        std::istringstream lines(list);
        static const std::regex mark(" # ");
        for (std::string line; std::getline(lines, line);) {
            line.erase(0, line.find_first_not_of(' '));
            if (line.empty()) continue;
            cases.emplace_back(std::sregex_token_iterator(line.begin(), line.end(), mark, -1),
                               std::sregex_token_iterator());
        }
        return cases;
    }

    std::unique_ptr<Project> project = std::make_unique<Project>();
    TableTexts texts;

  private:
    void Insert(int row, int count) {
        EXPECT_EQ(InsertRows(*project, texts, row, count), count < 9) << "more do not fit";
    }
    void DoStep(const std::string& step) {
        static const std::regex form(R"((\d*)\.?(\d*)(-?)(\d*)\.?(\d*)(.)(.*))");
        std::smatch part;
        ASSERT_TRUE(std::regex_match(step, part, form)) << step;
        const auto n = [&part](int i) { return static_cast<int>(ReadNumber(part.str(i))); };
        const bool isBlock = part[3] == "-";
        const TableBlock block{n(1), n(2), n(isBlock ? 4 : 1), n(isBlock ? 5 : 2)};
        const char what = *part[6].first;
        std::string text = part[7];
        if (what == '=') return ChangeCell(*project, texts, n(1), n(2), text);
        if (what == 'v') return FillDown(*project, texts, block);
        if (what == '^') return CloseUp(*project, texts);
        if (what == 'x' && n(2) == 0) return DeleteRows(*project, texts, n(1), n(4));
        if (what == 'x') return ClearBlock(*project, texts, block);
        if (what == '+') return Insert(n(1), n(7));
        std::ranges::replace(text, ' ', '\t');
        std::ranges::replace(text, '/', '\n');
        PasteBlock(*project, texts, block, text);
    }
};

}  // namespace idrova
