// The strip scheme's plan, its scratch size and its driver (see strip.hpp).
#include "filter/strip.hpp"

#include <algorithm>

namespace gex {

std::int64_t owngetSizeBufferOfBorders(int kw, int kh, int W, int H, int dataType, int channels) {
    const std::int64_t KW = kw, KH = kh, w = W, h = H;
    std::int64_t n;
    if (kw >= W || kh >= H) {
        n = (KW + w - 1) * (KH + h - 1);
    } else {
        const std::int64_t ax = (KW - 1) >> 1, ay = (KH - 1) >> 1;
        const std::int64_t rh = KH == 2 ? 2 - ay : KH - ay - 1;
        const std::int64_t rw = KW == 2 ? 2 - ax : KW - ax - 1;
        const std::int64_t top = rh > 0 ? (KW + w - 1) * (KH + rh - 1) : 0;
        const std::int64_t left = (KH + h - 1) * (KW + rw - 1);
        n = rw <= 0 ? top : std::max(top, left);
    }
    const std::int64_t s = dataType == 5 || dataType == 7 ? 2 : dataType == 13 ? 4 : 1;
    return ((channels * n * s + 31) & ~std::int64_t{31}) + 32;
}

namespace {

border_copy::Kind kind_of(int mode) {
    switch (mode) {
        case gexBorderMirror: return border_copy::Kind::Mirror;
        case gexBorderMirrorR: return border_copy::Kind::MirrorR;
        case gexBorderConst: return border_copy::Kind::Const;
        // Replicate, and modes no check lets through (only 240 carries one,
        // and it never builds a strip).
        default: return border_copy::Kind::Replicate;
    }
}

}  // namespace

StripPlan plan_strips(int kw, int kh, GexiSize roi, int border, const StripOptions& opt) {
    StripPlan p{};
    const int mode = border & kBorderModeMask;
    p.kind = kind_of(mode);
    p.ax = (kw - 1) >> 1;
    p.ay = (kh - 1) >> 1;
    p.rw = kw - p.ax - 1;
    p.rh = kh - p.ay - 1;
    p.rwStrip = p.rw;
    p.rhStrip = p.rh;
    int fl = border & kBorderFlagMask;
    if (p.ax == 0) fl |= gexBorderInMemLeft;
    if (p.rw == 0) fl |= gexBorderInMemRight;
    if (p.ay == 0) fl |= gexBorderInMemTop;
    if (p.rh == 0) fl |= gexBorderInMemBottom;
    p.flags = fl;
    const std::int64_t W = roi.width, H = roi.height;
    if (fl == gexBorderInMem) {
        p.path = StripPlan::InteriorOnly;
        p.scratchPixels = 0;
        return p;
    }
    const bool smaller = kw < roi.width && kh < roi.height;
    if (!smaller || opt.forceWholeCopy) {
        p.path = StripPlan::WholeCopy;
        p.scratchPixels = (W + kw - 1) * (H + kh - 1);
        return p;
    }
    p.path = StripPlan::Strips;
    if (opt.mirrorReach2 && mode == gexBorderMirror) {
        if (kw == 2) p.rwStrip = 2;
        if (kh == 2) p.rhStrip = 2;
    }
    std::int64_t rows = H, most = 0;
    if (!(fl & gexBorderInMemTop)) {
        most = std::max(most, (W + kw - 1) * (p.ay + kh - 1));
        rows -= p.ay;
    }
    if (!(fl & gexBorderInMemBottom)) {
        most = std::max(most, (W + kw - 1) * (p.rhStrip + kh - 1));
        rows -= p.rhStrip;
    }
    if (!(fl & gexBorderInMemLeft)) most = std::max(most, (std::int64_t{p.ax} + kw - 1) * (rows + kh - 1));
    if (!(fl & gexBorderInMemRight)) most = std::max(most, (std::int64_t{p.rwStrip} + kw - 1) * (rows + kh - 1));
    p.scratchPixels = most;
    return p;
}

std::int64_t strip_scratch_bytes(const StripPlan& plan, int pixelBytes) {
    return plan.scratchPixels * pixelBytes + 31;
}

void run_strips_bytes(const std::uint8_t* src, std::int64_t srcStep, std::uint8_t* dst, std::int64_t dstStep,
                      GexiSize roi, int kw, int kh, const StripPlan& p, border_copy::Format f,
                      const void* constant, void* buffer, StripKernel k) {
    auto run = [&](const std::uint8_t* s, std::int64_t ss, std::uint8_t* d, GexiSize r) {
        k.fn(k.ctx, s, ss, d, dstStep, r);
    };
    if (p.path == StripPlan::InteriorOnly) {
        run(src, srcStep, dst, roi);
        return;
    }
    const std::int64_t P = f.pixel();
    const std::int64_t W = roi.width, H = roi.height;
    const bool L = p.flags & gexBorderInMemLeft, R = p.flags & gexBorderInMemRight;
    const bool T = p.flags & gexBorderInMemTop, B = p.flags & gexBorderInMemBottom;
    auto* scratch = reinterpret_cast<std::uint8_t*>((reinterpret_cast<std::uintptr_t>(buffer) + 31) &
                                                    ~std::uintptr_t{31});
    auto at = [](auto* base, std::int64_t step, std::int64_t x, std::int64_t y, std::int64_t px) {
        return base + y * step + x * px;
    };
    // Builds a sw x sh scratch image from the regW x regH source region at
    // (x0, y0) placed at (left, top), then runs the kernel from the scratch
    // pixel under the first output pixel.
    auto strip = [&](std::int64_t x0, std::int64_t y0, std::int64_t regW, std::int64_t regH, std::int64_t sw,
                     std::int64_t sh, std::int64_t top, std::int64_t left, std::uint8_t* out, GexiSize outRoi) {
        const std::int64_t sstep = sw * P;
        border_copy::copy_border(at(src, srcStep, x0, y0, P), srcStep, regW, regH, scratch, sstep, sw, sh, top, left,
                                 p.kind, f, constant);
        run(at(scratch, sstep, p.ax, p.ay, P), sstep, out, outRoi);
    };

    // Columns of the source the top and bottom strips span: the real
    // neighbours on a flagged side, the border copy on the other.
    const std::int64_t x0 = L ? -p.ax : 0;
    const std::int64_t x1 = R ? W + p.rw : W;

    if (p.path == StripPlan::WholeCopy) {
        const std::int64_t y0 = T ? -p.ay : 0;
        const std::int64_t y1 = B ? H + p.rh : H;
        strip(x0, y0, x1 - x0, y1 - y0, W + kw - 1, H + kh - 1, T ? 0 : p.ay, L ? 0 : p.ax, dst, roi);
        return;
    }

    const int width = roi.width;
    std::int64_t r0 = 0, r1 = H;
    if (!T) {
        // Output rows [0, ay) read source rows [-ay, kh - 1 - ay).
        strip(x0, 0, x1 - x0, kh - 1, W + kw - 1, p.ay + kh - 1, p.ay, L ? 0 : p.ax, dst, GexiSize{width, p.ay});
        r0 = p.ay;
    }
    if (!B) {
        // The last n rows read source rows [H - n - ay, H) and rh rows below.
        const std::int64_t n = p.rhStrip;
        strip(x0, H - n - p.ay, x1 - x0, n + p.ay, W + kw - 1, n + kh - 1, 0, L ? 0 : p.ax, at(dst, dstStep, 0, H - n, P),
              GexiSize{width, static_cast<int>(n)});
        r1 = H - n;
    }
    const std::int64_t rows = r1 - r0;
    // The side strips span the rows left, with their real neighbours above
    // and below: ROI rows where a strip was made, memory where flagged.
    const std::int64_t sh = rows + kh - 1;
    std::int64_t c0 = 0, c1 = W;
    if (!L) {
        strip(0, r0 - p.ay, kw - 1, sh, p.ax + kw - 1, sh, 0, p.ax, at(dst, dstStep, 0, r0, P),
              GexiSize{p.ax, static_cast<int>(rows)});
        c0 = p.ax;
    }
    if (!R) {
        const std::int64_t n = p.rwStrip;
        strip(W - n - p.ax, r0 - p.ay, n + p.ax, sh, n + kw - 1, sh, 0, 0, at(dst, dstStep, W - n, r0, P),
              GexiSize{static_cast<int>(n), static_cast<int>(rows)});
        c1 = W - n;
    }
    run(at(src, srcStep, c0, r0, P), srcStep, at(dst, dstStep, c0, r0, P),
        GexiSize{static_cast<int>(c1 - c0), static_cast<int>(rows)});
}

}  // namespace gex
