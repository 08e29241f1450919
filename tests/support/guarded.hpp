// The guarded image of the tests.
//
// A ROI of width x height pixels with `channels` elements each, laid out with
// a padding before and after every row and guard rows above and below, all
// filled with a byte pattern that guards_ok() verifies. The whole block is
// mapped so that an inaccessible page follows it; with `page_end` the last
// ROI byte in memory sits right before that page (no padding after the last
// row, no guard rows below it), so any read past the ROI faults. With
// `negative_step` the rows lie in memory from bottom to top and the step
// handed to the library is negative.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <stdexcept>
#include <type_traits>
#include <vector>

namespace gextest {

struct Layout {
    int lpad = 8;            // bytes before each row
    int rpad = 24;           // bytes after each row (beyond the ROI)
    int guard_rows = 2;      // whole rows above (and below unless page_end)
    bool negative_step = false;
    bool page_end = false;
};

inline std::uint8_t guard_byte(std::size_t i) {
    return static_cast<std::uint8_t>((i * 167u + 91u) ^ (i >> 8) ^ 0x5a);
}

template <class T>
class Guarded {
public:
    Guarded(int width, int height, int channels = 1, Layout layout = {})
        : w_(width), h_(height), ch_(channels), lay_(layout) {
        if (width < 0 || height < 0 || channels < 1) throw std::invalid_argument("Guarded size");
        // Paddings stay multiples of the element size so that the test's own
        // element accesses are aligned; the library is tested on odd byte
        // offsets through 8u images.
        lay_.lpad = round_up(lay_.lpad);
        lay_.rpad = round_up(lay_.rpad);
        row_bytes_ = static_cast<std::int64_t>(width) * channels * sizeof(T);
        pitch_ = lay_.lpad + row_bytes_ + lay_.rpad;
        const int rows_below = lay_.page_end ? 0 : lay_.guard_rows;
        const std::int64_t mem_rows = lay_.guard_rows + height + rows_below;
        used_ = mem_rows * pitch_;
        if (lay_.page_end) used_ -= lay_.rpad;  // the last ROI byte ends the block
        if (h_ == 0) used_ = std::max<std::int64_t>(used_, 1);
        const std::int64_t page = sysconf(_SC_PAGESIZE);
        map_bytes_ = ((used_ + page - 1) / page + 1) * page;
        void* m = mmap(nullptr, map_bytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (m == MAP_FAILED) throw std::runtime_error("mmap");
        map_ = static_cast<std::uint8_t*>(m);
        const std::int64_t data_end = map_bytes_ - page;
        mprotect(map_ + data_end, page, PROT_NONE);
        block_ = map_ + (data_end - used_);
        for (std::int64_t i = 0; i < used_; ++i) block_[i] = guard_byte(i);
    }

    Guarded(const Guarded&) = delete;
    Guarded& operator=(const Guarded&) = delete;
    ~Guarded() { munmap(map_, map_bytes_); }

    int width() const { return w_; }
    int height() const { return h_; }
    int channels() const { return ch_; }
    std::int64_t row_elems() const { return static_cast<std::int64_t>(w_) * ch_; }

    // The step the library gets, in bytes.
    int step() const { return static_cast<int>(lay_.negative_step ? -pitch_ : pitch_); }
    // Top-left pixel of the ROI.
    T* ptr() { return row(0); }
    const T* ptr() const { return const_cast<Guarded*>(this)->row(0); }

    T* row(int y) { return reinterpret_cast<T*>(block_ + offset_of_row(y)); }
    const T* row(int y) const { return const_cast<Guarded*>(this)->row(y); }

    T& at(int x, int y, int c = 0) { return row(y)[static_cast<std::int64_t>(x) * ch_ + c]; }
    T at(int x, int y, int c = 0) const { return row(y)[static_cast<std::int64_t>(x) * ch_ + c]; }

    // Every byte outside the ROI still holds the pattern.
    bool guards_ok() const {
        std::vector<bool> roi(static_cast<std::size_t>(used_), false);
        for (int y = 0; y < h_; ++y) {
            std::int64_t o = offset_of_row(y);
            for (std::int64_t b = 0; b < row_bytes_; ++b) roi[o + b] = true;
        }
        for (std::int64_t i = 0; i < used_; ++i)
            if (!roi[i] && block_[i] != guard_byte(i)) return false;
        return true;
    }

    template <class Rng>
    void fill_random(Rng& rng) {
        for (int y = 0; y < h_; ++y) {
            T* r = row(y);
            for (std::int64_t i = 0; i < row_elems(); ++i) r[i] = random_value(rng);
        }
    }

    void fill(T v) {
        for (int y = 0; y < h_; ++y) {
            T* r = row(y);
            for (std::int64_t i = 0; i < row_elems(); ++i) r[i] = v;
        }
    }

    // The ROI's elements, row after row.
    std::vector<T> snapshot() const {
        std::vector<T> out;
        out.reserve(static_cast<std::size_t>(row_elems() * h_));
        for (int y = 0; y < h_; ++y) {
            const T* r = row(y);
            out.insert(out.end(), r, r + row_elems());
        }
        return out;
    }

    template <class Rng>
    static T random_value(Rng& rng) {
        if constexpr (std::is_floating_point_v<T>) {
            std::uniform_real_distribution<double> d(-1000.0, 1000.0);
            return static_cast<T>(d(rng));
        } else {
            std::uint64_t bits = rng();
            T v;
            std::memcpy(&v, &bits, sizeof(T));
            return v;
        }
    }

private:
    static int round_up(int b) { return (b + int(sizeof(T)) - 1) / int(sizeof(T)) * int(sizeof(T)); }

    std::int64_t offset_of_row(int y) const {
        const int mem_row = lay_.negative_step ? (h_ - 1 - y) : y;
        return (static_cast<std::int64_t>(lay_.guard_rows) + mem_row) * pitch_ + lay_.lpad;
    }

    int w_, h_, ch_;
    Layout lay_;
    std::int64_t row_bytes_ = 0, pitch_ = 0, used_ = 0, map_bytes_ = 0;
    std::uint8_t* map_ = nullptr;
    std::uint8_t* block_ = nullptr;
};

// Bitwise equality: NaN payloads and the sign of zero count.
template <class T>
bool same_bits(T a, T b) {
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

template <class T>
bool same_bits(const std::vector<T>& a, const std::vector<T>& b) {
    return a.size() == b.size() && (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0);
}

// The layouts every family is run through: plain padding, odd padding,
// a negative step, and the block whose last byte touches an inaccessible page.
inline std::vector<Layout> standard_layouts(bool allow_negative = true) {
    std::vector<Layout> v;
    v.push_back(Layout{});
    v.push_back(Layout{3, 61, 1, false, false});
    if (allow_negative) v.push_back(Layout{16, 5, 2, true, false});
    v.push_back(Layout{0, 40, 1, false, true});
    if (allow_negative) v.push_back(Layout{5, 9, 1, true, true});
    return v;
}

}  // namespace gextest
