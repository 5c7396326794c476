// SPDX-License-Identifier: GPL-3.0-or-later
// Takes the pictures of the documents from the program's windows: take_pictures DATA OUTPUT
// (scripts/take-pictures.sh sets the screen). Every plant is drawn, typed and computed here.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTemporaryDir>
#include <algorithm>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <iostream>
#include <map>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

#include "hydraulics/compute_network.h"
#include "model/grid.h"
#include "ui/drawing/plant_view.h"
#include "ui/frame/file_commands.h"
#include "ui/frame/mdi.h"
#include "ui/kit/child_window.h"
#include "ui/kit/child_windows.h"
#include "ui/kit/logo_picture.h"
#include "ui/kit/qt_text.h"
#include "ui/panel/frm_com.h"
#include "ui/program.h"
#include "ui/windows/frm_start.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

constexpr QSize kMainWindow(1340, 1060);
constexpr int kSizeOfTwoAndAHalf = 7;  ///< position of 2 1/2" in the lists

/// Whatever asks or warns has no place in a picture.
class NoBoxes final : public MessageBoxes {
  public:
    Answer Show(const MessageBox& box) override {
        throw std::runtime_error(box.title + ": " + box.text);
    }
};

/// Keeps only the colours that are seen most, for a small file.
QImage WithFewColours(const QImage& picture) {
    constexpr std::size_t kMostColours = 256;
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y) | 0xFF000000];
    }
    std::vector<std::pair<int, QRgb>> seen;
    seen.reserve(counts.size());
    for (const auto& [colour, count] : counts) seen.emplace_back(count, colour);
    std::ranges::sort(seen, std::greater());
    seen.resize(std::min(seen.size(), kMostColours));
    QList<QRgb> table;
    for (const auto& [count, colour] : seen) table << colour;
    return picture.convertToFormat(QImage::Format_Indexed8, table,
                                   Qt::ThresholdDither | Qt::AvoidDither);
}

/// Cells of the drawing, from its top left to its bottom right one.
struct CellRange {
    int firstColumn, firstRow, lastColumn, lastRow;
};

/// The program at work on copies of the sample data, and the camera before it.
class Studio {
  public:
    Studio(const fs::path& data, fs::path output) : output_(std::move(output)) {
        fs::copy(data, Folder(), fs::copy_options::recursive);
        program_ = std::make_unique<Program>(Folder(), boxes_);
        program_->lastFolder = Folder() / "samples";
        mdi_ = std::make_unique<MDI>(*program_);
        mdi_->resize(kMainWindow);
        mdi_->show();
        QApplication::processEvents();
    }

    template <typename Control>
    Control& Find(const char* name, QWidget* in = nullptr) {
        auto* control = (in != nullptr ? in : mdi_.get())->findChild<Control*>(name);
        if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return *control;
    }

    ChildWindow& Window(const char* name) {
        ChildWindow* window = mdi_->Windows().Find(name);
        if (window == nullptr) throw std::runtime_error(std::string("no window ") + name);
        return *window;
    }

    FrmCom& Panel() { return mdi_->Panel(); }
    void Choose(const char* item) { Find<QAction>(item).trigger(); }
    void Press(const char* button) { Find<QAbstractButton>(button, &Panel()).click(); }
    void Type(const char* box, const char* text) { Find<QLineEdit>(box, &Panel()).setText(text); }
    void OpenSample(const char* name) { OpenFile(*mdi_, Folder() / "samples" / name); }

    void Compute() {
        Press("Command1");
        const Outcome& outcome = program_->records[program_->project.settings.Mode].outcome;
        if (outcome.end != RunEnd::Settled) throw std::runtime_error("not settled");
    }

    void Click(int column, int row, MouseButton button = MouseButton::Left) {
        Find<PlantView>("Drawing").press(CellAt(column, row, program_->project.GridSize), button,
                                         HeldKey::None);
    }

    /// The right click on an empty cell gives the panel its frames back.
    void Insert(int kind, const char* name, int column, int row) {
        Click(1, 1, MouseButton::Right);
        Find<QComboBox>("Combo1", &Panel()).setCurrentIndex(kind);
        Find<QComboBox>("Combo3", &Panel()).setCurrentText(name);
        Press("Command3");
        Click(column, row);
    }

    /// Selects the pipe of a cell and types its length and its two heights.
    void Describe(int column, int row, const char* length, const char* z1, const char* z2) {
        Click(column, row, MouseButton::Right);
        Type("Text6", length);
        Find<QComboBox>("Combo2", &Panel()).setCurrentIndex(kSizeOfTwoAndAHalf);
        Type("Text5", z1);
        Type("Text11", z2);
    }

    void Save(QWidget& widget, const char* name, const QRect& part = {}) {
        QApplication::processEvents();
        const QRect whole = widget.rect();
        const QImage picture = widget.grab(part.isNull() ? whole : part).toImage();
        const fs::path file = output_ / name;
        if (!WithFewColours(picture).save(PathToQt(file)))
            throw std::runtime_error("cannot write " + file.string());
    }

    void SaveMainWindow(const char* name) { Save(*mdi_, name); }

    /// The child window with its frame, at the size that its content asks for.
    void SaveWindow(const char* window, const char* name, QSize size = {}) {
        QWidget& frame = *Window(window).parentWidget();
        if (size.isValid()) frame.resize(size);
        Save(frame, name);
    }

    void SaveCells(const CellRange& range, const char* name) {
        auto& view = Find<PlantView>("Drawing");
        const Project& project = program_->project;
        const auto corner = [&](int column, int row) {
            const ScreenPoint at = PointFromCell(project, CellAt(column, row, project.GridSize));
            return view.mapFromScene(QPointF(at.x, at.y));
        };
        Save(*view.viewport(), name,
             {corner(range.firstColumn, range.firstRow),
              corner(range.lastColumn + 1, range.lastRow + 1)});
    }

  private:
    fs::path Folder() const { return PathFromQt(temporary_.path()) / "work"; }

    QTemporaryDir temporary_;
    fs::path output_;
    NoBoxes boxes_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<MDI> mdi_;
};

/// The steps of the manual's first plant.
void TakeFirstPlant(const fs::path& data, const fs::path& output) {
    Studio studio(data, output);
    studio.Click(6, 20);
    studio.Click(26, 20);
    studio.Click(26, 20);
    studio.Click(26, 10);
    studio.Click(26, 10);
    studio.Click(34, 10);
    studio.Insert(0, "End suction 32-160, 2900 rpm", 12, 20);
    studio.Insert(1, "Check valve, swing", 18, 20);
    studio.Describe(9, 20, "4", "0", "0");
    studio.Describe(15, 20, "1", "0", "0");
    studio.Describe(22, 20, "40", "0", "0");
    studio.Describe(26, 15, "28", "0", "28");
    studio.Describe(30, 10, "10", "28", "28");
    studio.Press("Option2_1");
    studio.Type("Text9", "0");
    studio.Click(9, 20, MouseButton::Right);
    studio.Press("Option1_1");
    studio.Type("Text10", ".2");
    studio.Compute();
    studio.Save(studio.Find<QWidget>("Frame4"), "pressures.png");
    studio.Click(22, 20, MouseButton::Right);
    studio.Save(studio.Find<QWidget>("Frame3"), "pipe.png");
    studio.Press("Command4");
    studio.SaveCells({3, 5, 39, 23}, "first-plant.png");
}

void TakeDrawing(const fs::path& data, const fs::path& output) {
    Studio studio(data, output);
    studio.OpenSample("booster-station.iv");
    studio.Compute();
    studio.Click(28, 20, MouseButton::Right);
    studio.Press("Command4");
    studio.SaveMainWindow("plant.png");
}

void TakeColours(const fs::path& data, const fs::path& output) {
    Studio studio(data, output);
    studio.OpenSample("ring-main.iv");
    studio.Compute();
    studio.Choose("LabelsFlows");
    studio.Choose("ColoursVelocities");
    studio.SaveWindow("FrmCel", "colours.png");
    studio.Choose("TabRisultati");
    studio.SaveWindow("FrmRis", "results.png", {1080, 330});
}

void TakeDataWindows(const fs::path& data, const fs::path& output) {
    Studio studio(data, output);
    studio.Choose("Fluido");
    studio.Find<QComboBox>("Combo1", &studio.Window("FrmFlu")).setCurrentIndex(0);
    studio.SaveWindow("FrmFlu", "fluid.png");
    studio.Choose("Pompe");
    ChildWindow& pumps = studio.Window("FrmPompa");
    studio.Find<QComboBox>("Combo1", &pumps).setCurrentIndex(3);
    studio.Find<QLineEdit>("Text6", &pumps).setText("12500");
    studio.SaveWindow("FrmPompa", "pump.png");
    studio.Choose("PerditeCon");
    studio.Find<QComboBox>("Combo1", &studio.Window("FrmPerCon")).setCurrentIndex(8);
    studio.SaveWindow("FrmPerCon", "loss.png");
    studio.Choose("Apri");
    ChildWindow& files = studio.Window("FrmFile");
    studio.Find<QListWidget>("File1", &files).setCurrentRow(4);
    studio.Find<QLineEdit>("Text2", &files).setText("/home/anna/plants/ring-main.iv");
    studio.SaveWindow("FrmFile", "open.png");
}

void TakeTable(const fs::path& data, const fs::path& output) {
    Studio studio(data, output);
    studio.Choose("Tabella");
    studio.OpenSample("irrigation-table.iv");
    studio.Compute();
    studio.SaveWindow("FrmTable", "table.png", QSize(1040, 330));
    studio.Choose("Grafico");
    studio.Choose("Veloce");
    ChildWindow& fast = studio.Window("FrmVel");
    studio.Find<QLineEdit>("Text2", &fast).setText("25");
    studio.Find<QComboBox>("Combo2", &fast).setCurrentIndex(kSizeOfTwoAndAHalf);
    studio.SaveWindow("FrmVel", "fast.png");
}

void TakeSinglePipe(const fs::path& data, const fs::path& output) {
    Studio studio(data, output);
    studio.Choose("sintub");
    ChildWindow& pipe = studio.Window("FrmSin");
    studio.Find<QComboBox>("Combo2", &pipe).setCurrentIndex(kSizeOfTwoAndAHalf);
    for (const auto& [box, text] : std::initializer_list<std::pair<const char*, const char*>>{
             {"Text1", "100"}, {"Text2", "3"}, {"Text3", "2.5"}}) {
        studio.Find<QLineEdit>(box, &pipe).setText(text);
    }
    studio.SaveWindow("FrmSin", "single-pipe.png", QSize(560, 330));
}

}  // namespace
}  // namespace idrova

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    if (argc != 3) {
        std::cerr << "take_pictures DATA OUTPUT\n";
        return 2;
    }
    idrova::PrepareInput();
    QApplication::setWindowIcon(idrova::LogoIcon());
    try {
        for (const auto take :
             {idrova::TakeFirstPlant, idrova::TakeDrawing, idrova::TakeColours,
              idrova::TakeDataWindows, idrova::TakeTable, idrova::TakeSinglePipe}) {
            take(argv[1], argv[2]);
        }
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
