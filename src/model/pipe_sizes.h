// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace idrova {

/// Nominal pipe sizes, by their position in the editors' lists (from 1). Slots 13 .. 20 are empty.
constexpr int kNominalSizes = 12;
constexpr int kNominalSizeSlots = 20;

constexpr std::array<std::string_view, kNominalSizeSlots + 1> NominalSizeNames = {
    "", "3/8", "1/2", "3/4", "1", "1 1/4", "1 1/2", "2", "2 1/2", "3", "4", "5", "6"};

/// Inside diameters, mm.
constexpr std::array<double, kNominalSizeSlots + 1> InnerDiameters = {
    0, 13.2, 16.6, 22.3, 27.9, 36.6, 42.5, 53.8, 69.6, 81.6, 106.2, 129.9, 155.2};

/// Outside diameters, mm.
constexpr std::array<double, kNominalSizeSlots + 1> OuterDiameters = {
    0, 17.2, 21.3, 26.9, 33.7, 42.4, 48.3, 60.3, 76.1, 88.9, 114.3, 139.7, 165.0};

/// Position of the nominal size whose inside diameter is `diameter` (m); 0 when there is none.
/// A diameter that was set from the list is always found again.
int NominalSizeOf(float diameter);

/// What a diameter field (mm) shows once a nominal size is chosen; empty outside 1 .. 12.
std::string InnerDiameterText(int size);

}  // namespace idrova
