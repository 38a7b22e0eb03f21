// SPDX-License-Identifier: MIT
// The pieces of a template's lines that depend on one record alone.
#pragma once

#include <string>
#include <string_view>

#include "document/attribute_state.h"
#include "document/object_record.h"

namespace kev {

// "4" for an index into the basic colours, else "255,128,0".
std::string ColourText(const Colour& colour);
// "W=2;"; for a width of 1 the separator stands in front: ";W=1;".
std::string LineWidthItem(const ObjectRecord& record);
// "TBProps=285,Arial,8,,,1,0,0,0,255,255,255,".
std::string TextBoxPropsOf(const ObjectRecord& record);
// ";\np", ";Execute=a,b,c" and so on; empty for a command that has no form in a template.
std::string CommandWord(const ObjectRecord& record);
// "Upper=Y;" and so on.
std::string CaseItems(std::string_view caseMode);

}  // namespace kev
