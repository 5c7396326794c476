// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace idrova {

class MDI;

/// Attaches every command that is there to its menu item, button or hand-over.
void AttachCommands(MDI& mdi);

/// The commands in the order of their owners; each in a file of its own.
void AttachShellCommands(MDI& mdi);    ///< exit, modes, hints, help, about
void AttachSettingCommands(MDI& mdi);  ///< roughness, section, pressure unit, equation
void AttachProjectCommands(MDI& mdi);  ///< new, open, save
void AttachRunCommands(MDI& mdi);      ///< computation, flow directions
void AttachResultCommands(MDI& mdi);   ///< show, delete, print, keep in sequence
void AttachDrawing(MDI& mdi);          ///< the drawing and the panel's lists of components
void AttachDataWindows(MDI& mdi);      ///< the windows of the databases and of typed settings

}  // namespace idrova
