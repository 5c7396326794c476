// SPDX-License-Identifier: GPL-3.0-or-later
// Turns the user manual into a PDF file: make_manual MANUAL.md MANUAL.pdf. Needs no display.
#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextTable>
#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <vector>

namespace {

constexpr int kResolution = 600;  ///< dots per inch of the layout
constexpr double kPointsPerInch = 72;
constexpr double kUnitsPerInch = 96;  ///< of margins and pictures in a document
constexpr double kMargin = 57;        ///< points, 2 cm
constexpr double kBodySize = 10;      ///< points
constexpr std::array<double, 4> kHeadingSizes = {0, 20, 14, 11};
constexpr double kPixelSize = 0.62 / 2;  ///< points; pictures have two pixels to one of the screen
constexpr double kCodeSize = 8;
constexpr int kSpace = 6;           ///< units below a paragraph
constexpr double kCellPadding = 3;  ///< units
constexpr QRgb kHeadingColour = 0xFF1F4E79;
constexpr QRgb kTableHeadColour = 0xFFE4ECF4;
constexpr QRgb kLineColour = 0xFFB0B8C0;
/// What moves to the next page can part something else: no manual needs more rounds.
constexpr int kMostRounds = 100;

QFont BodyFont() {
    QFont font;
    font.setFamilies({"Liberation Sans", "Noto Sans", "Nimbus Sans", "DejaVu Sans", "sans-serif"});
    font.setPointSizeF(kBodySize);
    return font;
}

int Level(const QTextBlock& block) {
    return std::min(block.blockFormat().headingLevel(), 3);
}

bool IsCode(const QTextBlock& block) {
    return block.blockFormat().hasProperty(QTextFormat::BlockCodeFence) ||
           block.blockFormat().nonBreakableLines();
}

/// The manual as pages of `writer`.
class Manual {
  public:
    Manual(const QString& markdown, const QString& folder, QPdfWriter& writer) : writer_(writer) {
        const QSizeF page(writer.width(), writer.height());
        text_.setDefaultFont(BodyFont());
        text_.setBaseUrl(QUrl::fromLocalFile(folder + "/"));
        text_.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
        text_.documentLayout()->setPaintDevice(&writer);
        text_.setPageSize(page);
        QTextFrameFormat frame = text_.rootFrame()->frameFormat();
        frame.setMargin(kMargin / kPointsPerInch * kUnitsPerInch);
        text_.rootFrame()->setFrameFormat(frame);
        for (QTextBlock block = text_.begin(); block.isValid(); block = block.next()) Style(block);
        StyleTables(*text_.rootFrame());
        AddContents();
        KeepTogether();
        FillContents();
    }

    int Pages() const { return text_.pageCount(); }
    const QStringList& MissingPictures() const { return missing_; }

    void Print() {
        QPainter painter(&writer_);
        painter.setRenderHint(QPainter::LosslessImageRendering);
        const QSizeF page = text_.pageSize();
        for (int i = 0; i < Pages(); ++i) {
            if (i > 0) writer_.newPage();
            painter.save();
            painter.translate(0, -i * page.height());
            text_.drawContents(&painter, {0, i * page.height(), page.width(), page.height()});
            painter.restore();
            painter.setFont(BodyFont());
            const double foot = Pixels(kMargin) / 2;
            painter.drawText(QRectF(0, page.height() - 1.6 * foot, page.width(), foot),
                             Qt::AlignHCenter, QString::number(i + 1));
        }
    }

  private:
    void Style(const QTextBlock& block) {
        QTextCursor cursor(block);
        QTextBlockFormat format = block.blockFormat();
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        QTextCharFormat letters;
        if (const int level = Level(block); level > 0) {
            letters.setFontPointSize(kHeadingSizes.at(level));
            letters.setFontWeight(QFont::Bold);
            letters.setForeground(QColor(kHeadingColour));
            format.setTopMargin(level == 1 ? 0 : (4 - level) * 2.0 * kSpace);
            format.setBottomMargin(kSpace);
        } else if (IsCode(block)) {
            letters.setFontPointSize(kCodeSize);
            format.setTopMargin(0);
            format.setBottomMargin(IsCode(block.next()) ? 0 : 2 * kSpace);
        } else {
            const bool inTable = cursor.currentTable() != nullptr;
            const bool inList = block.textList() != nullptr;
            format.setTopMargin(0);
            format.setBottomMargin(inTable ? 0 : kSpace / (inList ? 2.0 : 1.0));
            format.setLineHeight(inTable ? 105 : 115, QTextBlockFormat::ProportionalHeight);
        }
        cursor.setBlockFormat(format);
        // What the import gave a heading, a size of its own among it, goes.
        if (Level(block) > 0) {
            cursor.setCharFormat(letters);
        } else {
            cursor.mergeCharFormat(letters);
        }
        SizePictures(block);
    }

    void SizePictures(const QTextBlock& block) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (!fragment.charFormat().isImageFormat()) continue;
            QTextImageFormat format = fragment.charFormat().toImageFormat();
            const QImage picture(text_.baseUrl().resolved(QUrl(format.name())).toLocalFile());
            if (picture.isNull()) {
                missing_ << format.name();
                continue;
            }
            const double most = TextWidth() - 1;
            const double scale = std::min(kPixelSize, most / picture.width());
            format.setWidth(picture.width() * scale * kUnitsPerInch / kPointsPerInch);
            format.setHeight(picture.height() * scale * kUnitsPerInch / kPointsPerInch);
            QTextCursor cursor(&text_);
            cursor.setPosition(fragment.position());
            cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            cursor.setCharFormat(format);
            // A line height in per cent would enlarge the picture's line as well.
            QTextBlockFormat line = block.blockFormat();
            line.setLineHeight(100, QTextBlockFormat::SingleHeight);
            line.setTopMargin(kSpace);
            line.setBottomMargin(2 * kSpace);
            cursor.setBlockFormat(line);
        }
    }

    /// Points between the margins.
    double TextWidth() const {
        return writer_.width() * kPointsPerInch / kResolution - 2 * kMargin;
    }

    static void StyleTables(const QTextFrame& frame) {
        for (QTextFrame* child : frame.childFrames()) {
            if (auto* table = qobject_cast<QTextTable*>(child)) StyleTable(*table);
            StyleTables(*child);
        }
    }

    /// Narrow columns get what their longest cell needs, the others share the rest.
    static void StyleTable(QTextTable& table) {
        QTextTableFormat format = table.format();
        format.setBorder(1);
        format.setBorderBrush(QColor(kLineColour));
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderCollapse(true);
        format.setCellPadding(kCellPadding);
        format.setCellSpacing(0);
        format.setBottomMargin(2 * kSpace);
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
        format.setHeaderRowCount(1);
        std::vector<double> letters(table.columns());
        for (int column = 0; column < table.columns(); ++column) {
            for (int row = 0; row < table.rows(); ++row) {
                const QTextTableCell cell = table.cellAt(row, column);
                const auto length = static_cast<double>(cell.lastCursorPosition().position() -
                                                        cell.firstCursorPosition().position());
                letters.at(column) = std::max(letters.at(column), length);
            }
            // Long texts break into lines: their columns need less than their length.
            letters.at(column) = 9 + std::min(letters.at(column), 20 + letters.at(column) / 2);
        }
        double sum = 0;
        for (const double count : letters) sum += count;
        QList<QTextLength> widths;
        for (const double count : letters) {
            widths << QTextLength(QTextLength::PercentageLength, 100 * count / sum);
        }
        format.setColumnWidthConstraints(widths);
        table.setFormat(format);
        for (int column = 0; column < table.columns(); ++column) {
            QTextTableCell cell = table.cellAt(0, column);
            QTextCharFormat head = cell.format();
            head.setBackground(QColor(kTableHeadColour));
            cell.setFormat(head);
        }
    }

    template <typename Visit>
    void ForSections(Visit visit) const {
        for (QTextBlock block = text_.begin(); block.isValid(); block = block.next()) {
            if (Level(block) == 2) visit(block);
        }
    }

    int PageOf(const QTextBlock& block) const {
        const QRectF box = text_.documentLayout()->blockBoundingRect(block);
        return static_cast<int>(box.top() / text_.pageSize().height());
    }

    /// One empty line a section, before the first of them.
    void AddContents() {
        std::vector<QTextBlock> sections;
        ForSections([&](const QTextBlock& block) { sections.push_back(block); });
        if (sections.empty()) return;
        QTextCursor cursor(sections.front());
        cursor.movePosition(QTextCursor::PreviousBlock);
        cursor.movePosition(QTextCursor::EndOfBlock);
        QTextBlockFormat format;
        const double width = TextWidth() / kPointsPerInch * kUnitsPerInch;
        format.setTabPositions({QTextOption::Tab(width - 1, QTextOption::RightTab)});
        for (std::size_t i = 0; i < sections.size(); ++i) {
            cursor.insertBlock(format, QTextCharFormat());
            contents_.push_back(cursor.block());
        }
    }

    void FillContents() {
        std::size_t line = 0;
        ForSections([&](const QTextBlock& block) {
            QTextCursor cursor(contents_.at(line++));
            cursor.insertText(block.text() + '\t' + QString::number(PageOf(block) + 1));
        });
    }

    /// A heading with a page break between it and what follows goes to the next page as well, and
    /// so do lines of code and rows of a table that a page break would part.
    void KeepTogether() {
        for (int round = 0; round < kMostRounds && (MoveOneBlock() || MoveOneRow()); ++round) {
        }
    }

    bool MoveOneBlock() {
        for (QTextBlock block = text_.begin(); block.isValid(); block = block.next()) {
            QTextBlockFormat format = block.blockFormat();
            if (format.pageBreakPolicy() != QTextFormat::PageBreak_Auto || !IsParted(block))
                continue;
            format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
            QTextCursor(block).setBlockFormat(format);
            return true;
        }
        return false;
    }

    bool IsParted(const QTextBlock& block) const {
        QTextBlock last = block;
        if (Level(block) > 1) last = block.next();
        while (IsCode(last) && IsCode(last.next()) && !IsCode(block.previous())) last = last.next();
        return last.isValid() && PageOf(block) != LinePage(last, 0);
    }

    bool MoveOneRow() {
        for (QTextFrame* frame : text_.rootFrame()->childFrames()) {
            auto* table = qobject_cast<QTextTable*>(frame);
            for (int row = 2; table != nullptr && row < table->rows(); ++row) {
                if (IsParted(*table, row)) return MoveRow(*table, row);
            }
        }
        return false;
    }

    bool IsParted(const QTextTable& table, int row) const {
        const int page = PageOf(table.cellAt(row, 0).firstCursorPosition().block());
        for (int column = 0; column < table.columns(); ++column) {
            const QTextBlock last = table.cellAt(row, column).lastCursorPosition().block();
            if (LinePage(last, last.layout()->lineCount() - 1) != page) return true;
        }
        return false;
    }

    /// The row above grows until no line of this one has room below it. False when it has grown.
    bool MoveRow(const QTextTable& table, int row) {
        const QTextBlock first = table.cellAt(row, 0).firstCursorPosition().block();
        const double bottom = (PageOf(first) + 1) * text_.pageSize().height() - Pixels(kMargin);
        const double top = text_.documentLayout()->blockBoundingRect(first).top();
        const double line = first.layout()->lineAt(0).height();
        const double space = (bottom - top - line / 2) * kUnitsPerInch / kResolution;
        for (int column = 0; column < table.columns(); ++column) {
            QTextTableCell cell = table.cellAt(row - 1, column);
            QTextTableCellFormat format = cell.format().toTableCellFormat();
            if (format.hasProperty(QTextFormat::TableCellBottomPadding)) return false;
            format.setBottomPadding(kCellPadding + space);
            cell.setFormat(format);
        }
        return true;
    }

    static double Pixels(double points) { return points / kPointsPerInch * kResolution; }

    int LinePage(const QTextBlock& block, int line) const {
        if (line < 0 || line >= block.layout()->lineCount()) return PageOf(block);
        const QRectF box = text_.documentLayout()->blockBoundingRect(block);
        const double bottom = box.top() + block.layout()->lineAt(line).rect().bottom();
        return static_cast<int>(bottom / text_.pageSize().height());
    }

    QPdfWriter& writer_;
    QTextDocument text_;
    std::vector<QTextBlock> contents_;
    QStringList missing_;
};

int MakeManual(const QString& source, const QString& target) {
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly)) {
        std::cerr << "cannot read " << source.toStdString() << '\n';
        return 1;
    }
    if (QFontDatabase::families().isEmpty()) {
        std::cerr << "no fonts are installed\n";
        return 1;
    }
    QPdfWriter writer(target);
    writer.setTitle("Idrova - User manual");
    writer.setCreator("Idrova");
    writer.setResolution(kResolution);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF());
    Manual manual(QString::fromUtf8(file.readAll()), QFileInfo(source).absolutePath(), writer);
    if (!manual.MissingPictures().isEmpty()) {
        std::cerr << "no picture " << manual.MissingPictures().join(", ").toStdString() << '\n';
        return 1;
    }
    manual.Print();
    return 0;
}

}  // namespace

int main(int argc, char* argv[]) {
    const QGuiApplication application(argc, argv);
    if (argc != 3) {
        std::cerr << "make_manual MANUAL.md MANUAL.pdf\n";
        return 2;
    }
    return MakeManual(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
}
