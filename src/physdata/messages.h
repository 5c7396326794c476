// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "base/message_boxes.h"

namespace idrova {

constexpr std::string_view kFluidsTitle = "Fluids database";
constexpr std::string_view kPumpsTitle = "Pumps database";
constexpr std::string_view kLossesTitle = "Concentrated losses database";

constexpr std::string_view kSettingsDamaged = "the file of its settings is damaged";
constexpr std::string_view kSettingsNewer =
    "the file of its settings was written by a newer version";

inline std::string SettingsFault(const std::string& key) {
    return "the file of its settings is damaged at \"" + key + "\"";
}

inline std::string SettingsUnread(const std::string& reason) {
    return "The settings that this project was saved with are not known: " + reason;
}

inline std::string SettingsDiffer(const std::string& difference) {
    return "This project was saved with other settings: " + difference;
}

constexpr FixedMessage kRedefineVolumeFlows{"The flow rates defined in [mc/h] must be redefined",
                                            "Change fluid", BoxIcon::Information};

constexpr FixedMessage kAskSaveFluid{"Do you want to save new data ?", "Edit fluid",
                                     BoxIcon::Question, BoxButtons::YesNo};
constexpr FixedMessage kAskDeleteFluid{"Do you want to delete the fluid ?", "Fluid deleting",
                                       BoxIcon::Information, BoxButtons::OkCancel};
constexpr FixedMessage kAskSaveFluidAs{"Do you want to save the new fluid ?", "New fluid",
                                       BoxIcon::Question, BoxButtons::YesNo};
constexpr FixedMessage kTooManyFluids{"Max number of fluids reached", "Fluids insertion",
                                      BoxIcon::Information};
constexpr FixedMessage kNoFluidToUse{"Select a fluid", "Fluid", BoxIcon::Information};
constexpr FixedMessage kNoFluidToSave{"Select a fluid", kAskSaveFluid.title, BoxIcon::Information};
constexpr FixedMessage kNoFluidToDelete{"Select a fluid", kAskDeleteFluid.title,
                                        BoxIcon::Information};

constexpr FixedMessage kEqualFlowRates{"Equal flow rates", "New pump"};
constexpr FixedMessage kEqualPressures{"Equal pressures", "New pump"};
constexpr FixedMessage kAskSavePump{"Do you want to save the new pump ?", "New pump",
                                    BoxIcon::Question, BoxButtons::YesNo};
constexpr FixedMessage kTooManyPumps{"Max number of pumps reached", "New pump",
                                     BoxIcon::Information};
constexpr FixedMessage kNoPumpToDelete{"Select a pump", "Pump deleting", BoxIcon::Information};

constexpr FixedMessage kLimitIsNoNumber{"A limit is a number, or empty for none", "Limits",
                                        BoxIcon::Information};

constexpr FixedMessage kZeroCoefficient{"Zero coefficient", "New concentrated drop",
                                        BoxIcon::Question};
constexpr FixedMessage kAskSaveLoss{"Do you want to save the new concentrated drop ?",
                                    "New concentrated drop", BoxIcon::Question, BoxButtons::YesNo};
constexpr FixedMessage kTooManyLosses{"Max number of concentrated losses reached",
                                      "New concentrated drop", BoxIcon::Information};
constexpr FixedMessage kAskDeleteLoss{"Do you want do delete the object ?",
                                      "Deleting concentrated drop", BoxIcon::Information,
                                      BoxButtons::OkCancel};
constexpr FixedMessage kNoLossToDelete{"Select a concentrated loss", kAskDeleteLoss.title,
                                       BoxIcon::Information};

/// A name that does not fit a record.
MessageBox BadName(std::size_t nameLimit, std::string_view title);

/// A file that is shown only up to its fault.
MessageBox DamagedDatabase(std::string_view file, int goodRecords, std::string_view title);
MessageBox TooManyRecords(std::string_view file, std::string_view title);

}  // namespace idrova
