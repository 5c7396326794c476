// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsScene>
#include <filesystem>

#include "editor/drawing_list.h"

namespace idrova {

class GridItem;
class PlantItem;

/// The drawing in the project's screen units: an item that paints all cells, and above it one that
/// paints the plant.
class PlantScene : public QGraphicsScene {
  public:
    PlantScene(const Project& project, const std::filesystem::path& folder);

    /// Shows this drawing; what was shown already is not painted anew.
    void Show(DrawingList drawing);
    const DrawingList& Shown() const;

    void ShowCursor(int place);

  private:
    GridItem* grid_;
    PlantItem* plant_;
};

}  // namespace idrova
