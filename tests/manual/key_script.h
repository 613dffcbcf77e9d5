#pragma once

// Key scripts as the manual prints them, pressed on a main frame.
//
// A script is a list of keys between blanks. A key is one of
//   - the word or sign on a key of the page: "sin", "x²", "÷", "delete"; "SHIFT" is a key like the others,
//   and
//     behind it the orange word names the key: "SHIFT asin";
//   - a number, a key for each of its digits: "12.5", in base 16 also "FF";
//   - [hold WORD]: the key with this orange word, held until it fires;
//   - [choose ITEM]: a row of the list that the key before has opened;
//   - [tap MARK]: a mark of the display: line, memory, base, angle, format, word size;
//   - [type TEXT], [press NAME]: characters and named keys of the keyboard;
//   - [paste TEXT];
//   - [go CATEGORY]: a tile of the chooser;
//   - [name NAME], [edit], [save]: field and key of the page of the user's macros.

#include <string>
#include <string_view>

#include "support/frame_rig.h"

namespace quorix::testing {

/// Presses a script. The first key that does not exist ends it; what is wrong is told, else nothing.
std::string PressScript(FrameRig& rig, std::string_view script);

/// The label of a cell as the manual writes it: superscripts raised ("x²"), without the caret of a list;
/// empty for a cell that does nothing.
std::string PrintedLabel(int category, PanelCell cell, bool orange);

}  // namespace quorix::testing
