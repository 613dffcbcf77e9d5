#include "platform/png_loader.h"

#include <png.h>

#include <algorithm>
#include <csetjmp>
#include <cstring>
#include <utility>

namespace quorix {

namespace {

constexpr std::size_t kSignatureBytes = 8;
constexpr double kScreenGamma = 2.2;
constexpr double kBackgroundGamma = 1.0;
constexpr png_alloc_size_t kLargestChunk = 4U * 1024U * 1024U;
constexpr png_uint_32 kMostCachedChunks = 64;
/// Deflate expands no further than this, so a header that promises more cannot be kept by its file. What
/// counts are the rows as the file packs them, before a palette or a few bits a pixel become whole colours.
constexpr std::uint64_t kLargestExpansion = 1032;

/// Owns the decoder. libpng reports errors by a jump; every jump lands in Guarded, whose frame and the frames
/// above it up to libpng hold nothing with a destructor. What is allocated stands in the members.
class PngReader {
  public:
    explicit PngReader(std::span<const std::uint8_t> file) : file_(file) {
        png_ = png_create_read_struct(PNG_LIBPNG_VER_STRING, this, OnError, OnWarning);
        if (png_ != nullptr) {
            info_ = png_create_info_struct(png_);
        }
    }
    ~PngReader() {
        if (png_ != nullptr) {
            png_destroy_read_struct(&png_, info_ != nullptr ? &info_ : nullptr, nullptr);
        }
    }
    PngReader(const PngReader&) = delete;
    PngReader& operator=(const PngReader&) = delete;

    bool ReadHeader() { return info_ != nullptr && Guarded(&PngReader::SetUp); }

    /// After the header: room for all rows, or false when the file is too short for what it promises.
    bool MakeRoom() {
        height_ = png_get_image_height(png_, info_);
        rowBytes_ = png_get_rowbytes(png_, info_);
        const std::uint64_t bytes = static_cast<std::uint64_t>(rowBytes_) * height_;
        if (static_cast<std::uint64_t>(packedRowBytes_) * height_ / kLargestExpansion > file_.size()) {
            return false;
        }
        bytes_.resize(static_cast<std::size_t>(bytes));
        rows_.resize(height_);
        for (std::size_t y = 0; y < rows_.size(); ++y) {
            rows_[y] = bytes_.data() + y * rowBytes_;
        }
        return true;
    }

    bool ReadRows() { return Guarded(&PngReader::ReadImage); }

    /// Once, behind ReadRows.
    [[nodiscard]] DecodedPicture TakePicture() {
        DecodedPicture picture;
        picture.width = static_cast<int>(png_get_image_width(png_, info_));
        picture.height = static_cast<int>(height_);
        const std::size_t channels = png_get_channels(png_, info_);
        if (channels == 4) {
            picture.pixels = std::move(bytes_);
            return picture;
        }
        const std::size_t count = static_cast<std::size_t>(picture.width) * height_;
        picture.pixels.resize(count * 4);
        for (std::size_t i = 0; i < count; ++i) {
            std::uint8_t* to = picture.pixels.data() + i * 4;
            std::memcpy(to, bytes_.data() + i * channels, 3);
            to[3] = 255;
        }
        return picture;
    }

  private:
    using Step = void (PngReader::*)();

    bool Guarded(Step step) {
        if (setjmp(jump_) != 0) {  // NOLINT(cert-err52-cpp): the way libpng reports errors.
            return false;
        }
        (this->*step)();
        return true;
    }

    void SetUp() {
        png_set_user_limits(png_, kLargestPictureSide, kLargestPictureSide);
        png_set_chunk_malloc_max(png_, kLargestChunk);
        png_set_chunk_cache_max(png_, kMostCachedChunks);
        png_set_read_fn(png_, this, OnRead);
        png_read_info(png_, info_);
        packedRowBytes_ = png_get_rowbytes(png_, info_);
        SetTransforms();
        png_set_interlace_handling(png_);
        png_read_update_info(png_, info_);
        const int channels = png_get_channels(png_, info_);
        if (png_get_bit_depth(png_, info_) != 8 || (channels != 3 && channels != 4)) {
            png_error(png_, "unexpected pixel format");
        }
    }

    /// The same for every picture; the order matters to what the background and the gamma act on.
    void SetTransforms() {
        const png_byte colorType = png_get_color_type(png_, info_);
        if (png_get_bit_depth(png_, info_) == 16) {
            png_set_strip_16(png_);
        }
        if (colorType == PNG_COLOR_TYPE_PALETTE) {
            png_set_palette_to_rgb(png_);
        }
        if (colorType == PNG_COLOR_TYPE_GRAY && png_get_bit_depth(png_, info_) < 8) {
            png_set_expand_gray_1_2_4_to_8(png_);
        }
        if (png_get_valid(png_, info_, PNG_INFO_tRNS) != 0) {
            png_set_tRNS_to_alpha(png_);
        }
        if ((colorType & PNG_COLOR_MASK_COLOR) == 0) {
            png_set_gray_to_rgb(png_);
        }
        png_color_16p background = nullptr;
        if (png_get_bKGD(png_, info_, &background) != 0) {
            png_set_background(png_, background, PNG_BACKGROUND_GAMMA_FILE, 1, kBackgroundGamma);
        }
        double gamma = 0;
        if (png_get_gAMA(png_, info_, &gamma) != 0) {
            png_set_gamma(png_, kScreenGamma, gamma);
        }
    }

    void ReadImage() { png_read_image(png_, rows_.data()); }

    [[noreturn]] static void OnError(png_structp png, png_const_charp /*message*/) {
        std::longjmp(static_cast<PngReader*>(png_get_error_ptr(png))->jump_, 1);
    }
    static void OnWarning(png_structp /*png*/, png_const_charp /*message*/) {}

    static void OnRead(png_structp png, png_bytep to, png_size_t count) {
        auto* reader = static_cast<PngReader*>(png_get_io_ptr(png));
        if (count > reader->file_.size() - reader->at_) {
            png_error(png, "file ends early");
        }
        std::memcpy(to, reader->file_.data() + reader->at_, count);
        reader->at_ += count;
    }

    std::span<const std::uint8_t> file_;
    std::size_t at_ = 0;
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
    std::jmp_buf jump_{};
    std::size_t packedRowBytes_ = 0;
    std::size_t rowBytes_ = 0;
    std::uint32_t height_ = 0;
    std::vector<std::uint8_t> bytes_;
    std::vector<png_bytep> rows_;
};

}  // namespace

DecodedPicture DecodePng(std::span<const std::uint8_t> file) {
    if (file.size() < kSignatureBytes || png_sig_cmp(file.data(), 0, kSignatureBytes) != 0) {
        return {};
    }
    PngReader reader(file);
    if (!reader.ReadHeader() || !reader.MakeRoom() || !reader.ReadRows()) {
        return {};
    }
    return reader.TakePicture();
}

}  // namespace quorix
