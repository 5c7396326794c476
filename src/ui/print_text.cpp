// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/print_text.h"

#include <QBuffer>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextDocument>
#include <QTextOption>
#include <algorithm>
#include <cmath>

#include "base/file.h"
#include "ui/messages.h"
#include "ui/qt_text.h"

namespace idrova {

namespace {

constexpr double kLargestPoints = 10;
constexpr double kSmallestPoints = 4;
constexpr double kMarginsInches = 4 / 2.54;  ///< both together, inside those of the device
constexpr QChar kNominalSizeMark = u'\x16';

/// Without the blanks at its end; at least one letter.
QString LongestLine(const QString& text) {
    qsizetype longest = 1;
    for (const QString& line : text.split('\n')) {
        longest = std::max(longest, ("x" + line).trimmed().size() - 1);
    }
    return QString(longest, 'x');
}

QTextOption Unwrapped() {
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    return option;
}

/// The size at which the longest line just fits the page.
QFont FittingFont(const QString& text, QPagedPaintDevice& device) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(kLargestPoints);
    const double width = device.width() - kMarginsInches * device.logicalDpiX();
    const double needed = QFontMetricsF(font, &device).horizontalAdvance(LongestLine(text));
    const double points = std::floor(10 * kLargestPoints * width / needed) / 10;
    font.setPointSizeF(std::clamp(points, kSmallestPoints, kLargestPoints));
    return font;
}

void PrintOn(QPagedPaintDevice& device, const std::string& text) {
    QString lines = ToQt(text).remove('\r');
    lines.replace(kNominalSizeMark, ' ');  // paper would show it as an empty box
    QTextDocument document;
    document.setDefaultFont(FittingFont(lines, device));
    document.setDefaultTextOption(Unwrapped());
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
