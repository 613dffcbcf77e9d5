#pragma once

// What the shared library of the equation rasteriser exports, by name and C types.

extern "C" {

/// Rasterises TeX (8 bits, ends in 0). fileName is passed as it stands and no file is written. width and
/// height are in pixels, width a multiple of 8; the raster is 0 when there is no picture. Result: 1 for a
/// picture, else 0. Blocks until the picture is there, at most for the library's time limit; no messages are
/// handled.
using CreateGifFromEqFunction = int (*)(const char* expression, const char* fileName, int* width, int* height,
                                        void** raster);
/// The bitmap of a raster: one bit a pixel, rows of width / 8 bytes, first row on top, least significant bit
/// leftmost. entry: the address of this function itself. The memory is the raster's.
using GetPixelArrayFunction = const unsigned char* (*)(void* raster, void* entry);
/// Frees a raster; 0 is allowed.
using DelSubrasterFunction = void (*)(void* raster);
}

namespace quorix::mtex {

inline constexpr char kLibraryFile[] = "libmtex.so";
inline constexpr char kCreateGifFromEq[] = "CreateGifFromEq";
inline constexpr char kGetPixelArray[] = "GetPixelArray";
inline constexpr char kDelSubraster[] = "del_subraster";
inline constexpr char kGifFileName[] = "temp.gif";

}  // namespace quorix::mtex
