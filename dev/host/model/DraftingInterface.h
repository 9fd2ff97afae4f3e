#pragma once

namespace devhost
{

class HostApplication;

/// Gives a host the menus and the ribbon of a CAD program: among them the menu "ID_Import" and, in the
/// workspace "Drafting and Annotation", the row "ID_ImportPANELROW" of panel "ID_ImportPanel" of tab
/// "ID_ImportTab", which is where add-ins put themselves.
void addDraftingInterface(HostApplication& application);

} // namespace devhost
