// SPDX-License-Identifier: GPL-3.0-or-later
#include <QComboBox>
#include <QProcess>
#include <cmath>
#include <sstream>

#include "base/number_text.h"
#include "drawing_window.h"
#include "physdata/fluids.h"
#include "projectfile/project_file.h"
#include "ui/kit/qt_text.h"

namespace idrova {
namespace {

/// A user's whole job in the real window, on the shipped databases.
class WholeJob : public DrawingWindow {
  protected:
    WholeJob() {
        for (const char* file : {"fluidi.dat", "pompe.dat", "percon.dat"}) {
            std::filesystem::copy_file(std::filesystem::path(IDROVA_DATA) / file, folder / file,
                                       std::filesystem::copy_options::overwrite_existing);
        }
        RereadComponents(*program);
        program->changed();
        LoadCurrentFluid(project.settings, program->fluids, folder.Path(), boxes);
    }

    void Place(int kind, const char* name, int column, int row) {
        Select(50, 50);
        Child<QComboBox>("Combo1").setCurrentIndex(kind);
        Child<QComboBox>("Combo3").setCurrentText(name);
        Do("Command3");
        Click(column, row);
    }

    /// What idrova-calc reports on a project file in the folder.
    std::string ReportOfCalc(const char* file) {
        std::filesystem::remove(folder / "out.dat");
        QProcess calc;
        calc.setWorkingDirectory(PathToQt(folder.Path()));
        calc.start(IDROVA_CALC, {file});
        EXPECT_TRUE(calc.waitForFinished());
        EXPECT_EQ(calc.exitCode(), 0) << calc.readAllStandardError().toStdString();
        return FileBytes(folder / "out.dat");
    }
};

std::vector<std::string> Words(const std::string& report) {
    std::istringstream text(report.substr(report.find("Mode:")));
    return {std::istream_iterator<std::string>(text), {}};
}

/// The same word, or nearly the same number: a run starts from random flows.
bool AreAlike(const std::string& word, const std::string& other) {
    const auto value = ParseNumber(word);
    const auto otherValue = ParseNumber(other);
    if (!value || !otherValue) return word == other;
    return std::abs(*value - *otherValue) <= 1e-3 * std::abs(*value) + 1e-6;
}

TEST_F(WholeJob, DrawsDescribesComputesAndReports) {
    Draw(5, 10, 20, 10);
    Draw(20, 10, 20, 20);
    Draw(20, 20, 5, 20);
    Draw(5, 20, 5, 10);
    Draw(1, 10, 5, 10);
    Draw(20, 20, 30, 20);
    Place(0, "Circulator 25-40", 3, 10);
    Place(1, "Gate valve, open", 25, 20);
    constexpr std::pair<int, int> pieces[] = {{12, 10}, {20, 15}, {12, 20}, {5, 15},
                                              {2, 10},  {22, 20}, {4, 10},  {27, 20}};
    for (const auto& [column, row] : pieces) {
        Select(column, row);
        Do("Text6=8;Combo2#3");
    }
    Do("Option2_1;Text9=1.5");
    Select(2, 10);
    Do("Option1_1;Text10=1.5");
    ASSERT_EQ(project.numtubo, 8);
    ASSERT_EQ(project.npres, 10);

    Do("Command1");
    const Outcome& outcome = program->records[WorkMode::Graphic].outcome;
    EXPECT_EQ(outcome.end, RunEnd::Settled) << OutcomeLine(outcome);
    const std::vector<std::string> report = Words(FileBytes(folder / "out.dat"));
    ASSERT_GT(report.size(), 100U);
    Select(12, 10);
    EXPECT_GT(std::abs(ReadNumber(FromQt(Shown("Text2")))), 100);  // kg/h in one branch

    ASSERT_TRUE(WriteProject(project, folder / "job.iv"));
    const std::vector<std::string> other = Words(ReportOfCalc("job.iv"));
    ASSERT_EQ(report.size(), other.size());
    for (std::size_t i = 0; i < report.size(); ++i) {
        EXPECT_TRUE(AreAlike(report[i], other[i])) << report[i] << " and " << other[i];
    }
}

}  // namespace
}  // namespace idrova
