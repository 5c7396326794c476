// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/run_settings.h"
#include "physdata/pipe_settings.h"
#include "table/table_texts.h"
#include "ui/frame/commands.h"
#include "ui/frame/mdi.h"
#include "ui/frame/menu_bar.h"
#include "ui/program.h"

namespace idrova {

namespace {

void SwitchPressureUnit(MDI& mdi, Unit unit) {
    Program& program = mdi.State();
    ChoosePressureUnit(program.project.settings, unit);
    FillTable(program.project, program.table);
    mdi.ShowNetwork();
}

}  // namespace

void AttachSettingCommands(MDI& mdi) {
    MenuBar& menu = mdi.Menu();
    Program& program = mdi.State();
    Project& project = program.project;
    for (const RoughnessPreset& preset : kRoughnessPresets) {
        menu.Attach(preset.item, [&program, &preset] {
            program.roughnessLabel = ChooseRoughness(program.project.settings, preset);
            program.shell.roughnessItem = preset.item;
        });
    }
    menu.Attach("Circolare", [&project] { project.settings.SectionType = Section::Circular; });
    menu.Attach("Rettangolare",
                [&project] { project.settings.SectionType = Section::Rectangular; });
    menu.Attach("p_bar", [&mdi] { SwitchPressureUnit(mdi, Unit::Bar); });
    menu.Attach("p_mbar", [&mdi] { SwitchPressureUnit(mdi, Unit::MilliBar); });
    menu.Attach("Cor1", [&project] { ChooseIncompressible(project.settings); });
    menu.Attach("Cor2",
                [&program] { ChooseCompressible(program.project.settings, program.boxes); });
}

}  // namespace idrova
