// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/drawing/plant_scene.h"

#include <utility>

#include "ui/drawing/grid_item.h"
#include "ui/drawing/plant_item.h"

namespace idrova {

PlantScene::PlantScene(const Project& project, const std::filesystem::path& folder)
    : grid_(new GridItem(project)), plant_(new PlantItem(project, folder, grid_->boundingRect())) {
    addItem(grid_);
    addItem(plant_);
    setSceneRect(grid_->boundingRect());
}

void PlantScene::Show(DrawingList drawing) {
    grid_->Start(drawing.firstColumn, drawing.firstRow);
    plant_->Show(std::move(drawing));
}

const DrawingList& PlantScene::Shown() const {
    return plant_->Shown();
}

void PlantScene::ShowCursor(int place) {
    grid_->ShowCursor(place);
}

}  // namespace idrova
