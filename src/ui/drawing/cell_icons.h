// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QRectF>
#include <filesystem>
#include <map>
#include <string>

class QPainter;

namespace idrova {

/// The icons of placed components, read once from the program folder. A file that is missing is
/// stood in for by a drawn shape, so that no component is ever invisible.
class CellIcons {
  public:
    explicit CellIcons(std::filesystem::path folder) : folder_(std::move(folder)) {}

    /// Paints the icon named by the drawing ("IMG\\arrt.ico") into a rectangle of the painter's
    /// units, sharp at any scale.
    void Paint(QPainter& painter, const QRectF& place, const std::string& file);

  private:
    const QIcon& Icon(const std::string& file);

    const std::filesystem::path folder_;
    std::map<std::string, QIcon> icons_;
};

}  // namespace idrova
