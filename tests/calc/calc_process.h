// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "base/file.h"
#include "model/project_file.h"
#include "physdata/fluids.h"
#include "physdata/pumps.h"
#include "support/networks.h"
#include "support/temp_folder.h"

namespace idrova {

using Json = nlohmann::json;

/// What a run of idrova-calc left behind.
struct CalcResult {
    int status = -1;
    std::string out, err;

    Json Parsed() const { return Json::parse(out, nullptr, false); }
};

/// Runs the real program in a folder of its own that holds a database of three fluids and one of
/// one pump.
class CalcProcess : public testing::Test {
  protected:
    CalcProcess() {
        FluidDb fluids;
        fluids[++fluids.count] = {.name = "Water", .density = 998.2F, .viscosity = .001002F};
        fluids[++fluids.count] = {.name = "Light oil", .density = 850, .viscosity = .01F};
        fluids[++fluids.count] = {
            .name = "Air", .density = 1.293F, .viscosity = 1.82e-5F, .compressibility = 1};
        PutFile(folder / "fluidi.dat", EncodeRecords(fluids));

        PumpDb pumps;
        pumps[++pumps.count] = {
            .name = "Booster", .pMax = 400000, .qMin = 0, .pMin = 100000, .qMax = 10};
        PutFile(folder / "pompe.dat", EncodeRecords(pumps));
    }

    void Put(std::string_view name, const Project& project) {
        PutFile(folder / name, ProjectFileText(project));
    }

    /// `arguments` as on a command line, relative to the folder.
    CalcResult Run(const std::string& arguments) {
        const std::string command = "cd '" + folder.Path().string() + "' && '" IDROVA_CALC "' " +
                                    arguments + " >stdout.txt 2>stderr.txt";
        const int status = std::system(command.c_str());  // NOLINT(concurrency-mt-unsafe)
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, FileBytes(folder / "stdout.txt"),
                FileBytes(folder / "stderr.txt")};
    }

    bool Has(std::string_view name) const { return std::filesystem::exists(folder / name); }

    TempFolder folder;
};

}  // namespace idrova
