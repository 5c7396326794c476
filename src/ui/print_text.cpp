// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/print_text.h"

#include <QBuffer>
#include <QFileDialog>
#include <QFontDatabase>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextDocument>
#include <algorithm>

#include "base/file.h"
#include "ui/messages.h"
#include "ui/qt_text.h"

namespace idrova {

namespace {

constexpr double kLargestPoints = 10;
constexpr double kSmallestPoints = 4;
constexpr double kMarginsMillimetres = 40;  ///< both together, as text documents print
constexpr double kPointsPerMillimetre = 72 / 25.4;
constexpr double kWidthOfLetter = 0.61;  ///< of a fixed font, in parts of its size
constexpr QChar kNominalSizeMark = u'\x16';

qsizetype LongestLine(const QString& text) {
    qsizetype longest = 1;
    for (const QString& line : text.split('\n')) longest = std::max(longest, line.size());
    return longest;
}

/// The size at which the longest line just fits the page.
QFont FittingFont(const QString& text, double pageMillimetres) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const double width = (pageMillimetres - kMarginsMillimetres) * kPointsPerMillimetre;
    const double points = width / (kWidthOfLetter * static_cast<double>(LongestLine(text)));
    font.setPointSizeF(std::clamp(points, kSmallestPoints, kLargestPoints));
    return font;
}

void PrintOn(QPagedPaintDevice& device, const std::string& text) {
    QString lines = ToQt(text).remove('\r');
    lines.replace(kNominalSizeMark, ' ');  // paper would show it as an empty box
    QTextDocument document;
    document.setDefaultFont(
        FittingFont(lines, device.pageLayout().fullRect(QPageLayout::Millimeter).width()));
    document.setPlainText(lines);
    document.print(&device);
}

}  // namespace

void OfferPdf(const std::string& text, QWidget* parent, MessageBoxes& boxes) {
    if (boxes.Show(kNoPrinter) != Answer::Yes) return;
    const QString path =
        QFileDialog::getSaveFileName(parent, "Print", "results.pdf", "PDF (*.pdf)");
    if (path.isEmpty()) return;
    const Status written = WritePdf(text, PathFromQt(path));
    if (!written) boxes.Show({written.Error(), kNoPrinter.title});
}

void PrintText(const std::string& text, QWidget* parent, MessageBoxes& boxes) {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        OfferPdf(text, parent, boxes);
        return;
    }
    QPrinter printer;
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() == QDialog::Accepted) PrintOn(printer, text);
}

Status WritePdf(const std::string& text, const std::filesystem::path& path) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QPageSize::A4));
        PrintOn(writer, text);
    }
    const QByteArray& bytes = buffer.data();
    return WriteWholeFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace idrova
