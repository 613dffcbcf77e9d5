#pragma once

// How the display outlives the program: its lines, memories, base and format in "led.dat".

#include <filesystem>

#include "frontends/led_display.h"

namespace quorix {

inline constexpr std::u16string_view kDisplayFileName = u"led.dat";

class DisplayFile {
  public:
    explicit DisplayFile(std::filesystem::path path) : path_(std::move(path)) {}

    /// Reads the file into the display. An absent file changes nothing. A damaged one is kept as
    /// "led.dat.bad"; lines and memories are then empty and the format is NORM.
    void Restore(CLedDisplay& display) const;
    /// Writes the file; false when the disk refuses (the old file then stands untouched).
    bool Save(const CLedDisplay& display) const;

  private:
    std::filesystem::path path_;
};

}  // namespace quorix
