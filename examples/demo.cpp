// gexIP demo: runs what the library can do on an image and writes the results
// as PNG files. With no argument it makes its own test image in memory;
// otherwise it reads a binary PPM (P6). Usage: gexip_demo [input.ppm] [outdir]
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "gexip.h"
#include "png.hpp"

namespace {

struct Image {
    Gex8u* data = nullptr;
    int step = 0;
    int width = 0, height = 0, channels = 0;
    Image() = default;
    Image(int w, int h, int ch) : width(w), height(h), channels(ch) {
        data = ch == 1 ? gexiMalloc_8u_C1(w, h, &step) : ch == 3 ? gexiMalloc_8u_C3(w, h, &step)
                                                                 : gexiMalloc_8u_C4(w, h, &step);
        if (!data) {
            std::fprintf(stderr, "allocation of %dx%dx%d failed\n", w, h, ch);
            std::exit(1);
        }
    }
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;
    ~Image() { gexiFree(data); }
    GexiSize size() const { return {width, height}; }
    Gex8u* row(int y) { return data + static_cast<std::ptrdiff_t>(y) * step; }
};

// A test card: colour gradients, rings and a checker band.
void make_test_image(Image& img) {
    for (int y = 0; y < img.height; ++y) {
        Gex8u* r = img.row(y);
        for (int x = 0; x < img.width; ++x) {
            double dx = x - img.width * 0.5, dy = y - img.height * 0.5;
            double ring = 0.5 + 0.5 * std::cos(std::sqrt(dx * dx + dy * dy) * 0.08);
            bool check = y > img.height * 0.8 && ((x / 16 + y / 16) & 1);
            r[3 * x + 0] = static_cast<Gex8u>(255.0 * x / (img.width - 1));
            r[3 * x + 1] = static_cast<Gex8u>(255.0 * ring);
            r[3 * x + 2] = check ? 255 : static_cast<Gex8u>(255.0 * y / (img.height - 1));
        }
    }
}

bool read_ppm(const char* path, std::vector<Gex8u>& pix, int& w, int& h) {
    FILE* f = std::fopen(path, "rb");
    if (!f) return false;
    int maxv = 0;
    bool ok = std::fscanf(f, "P6 %d %d %d", &w, &h, &maxv) == 3 && maxv == 255 && w > 0 && h > 0;
    if (ok) {
        std::fgetc(f);
        pix.resize(static_cast<std::size_t>(w) * h * 3);
        ok = std::fread(pix.data(), 1, pix.size(), f) == pix.size();
    }
    std::fclose(f);
    return ok;
}

std::uint32_t checksum(Image& img) {
    std::uint32_t c = 0xffffffffu;
    for (int y = 0; y < img.height; ++y)
        c = demo::crc32(img.row(y), static_cast<std::size_t>(img.width) * img.channels, c);
    return c ^ 0xffffffffu;
}

struct Row {
    std::string op;
    double usec;
    std::uint32_t sum;
    GexStatus status;
};
std::vector<Row> g_rows;

// Runs an operation a few times; the median time goes into the table with a
// checksum of the output.
void run_with(const std::string& name, const std::function<std::uint32_t()>& sum, const std::function<GexStatus()>& fn) {
    std::vector<double> t;
    GexStatus st = gexStsOk;
    for (int i = 0; i < 7; ++i) {
        auto t0 = std::chrono::steady_clock::now();
        st = fn();
        auto t1 = std::chrono::steady_clock::now();
        t.push_back(std::chrono::duration<double, std::micro>(t1 - t0).count());
    }
    std::sort(t.begin(), t.end());
    g_rows.push_back({name, t[t.size() / 2], sum(), st});
}

void run(const std::string& name, Image& out, const std::function<GexStatus()>& fn) {
    run_with(name, [&] { return checksum(out); }, fn);
}

}  // namespace

int main(int argc, char** argv) {
    const std::string outdir = argc > 2 ? argv[2] : "demo_out";
    std::string mk = "mkdir -p '" + outdir + "'";
    if (std::system(mk.c_str()) != 0) return 1;

    std::vector<Gex8u> input;
    int w = 1280, h = 720;
    const bool asked = argc > 1 && argv[1][0] != '\0';
    bool have_input = asked && read_ppm(argv[1], input, w, h);
    if (asked && !have_input) std::fprintf(stderr, "cannot read %s as a binary PPM; using the test image\n", argv[1]);

    const GexLibraryVersion* v = gexiGetLibVersion();
    std::printf("%s %s, image %dx%d (%s)\n\n", v->name, v->version, w, h, have_input ? argv[1] : "built-in test card");

    Image src(w, h, 3);
    if (have_input) {
        gexiCopy_8u_C3R(input.data(), w * 3, src.data, src.step, src.size());
    } else {
        make_test_image(src);
    }
    demo::write_png(outdir + "/input.png", src.data, w, h, 3, src.step);

    // Plain copy.
    Image copy(w, h, 3);
    run("Copy_8u_C3R", copy, [&] { return gexiCopy_8u_C3R(src.data, src.step, copy.data, copy.step, src.size()); });

    // Split into planes, and merge them back in the other order (RGB -> BGR).
    Image planes[3] = {Image(w, h, 1), Image(w, h, 1), Image(w, h, 1)};
    Gex8u* const dst_planes[3] = {planes[0].data, planes[1].data, planes[2].data};
    run("Copy_8u_C3P3R (split)", planes[1],
        [&] { return gexiCopy_8u_C3P3R(src.data, src.step, dst_planes, planes[0].step, src.size()); });
    const char* names[3] = {"red", "green", "blue"};
    for (int c = 0; c < 3; ++c)
        demo::write_png(outdir + "/plane_" + names[c] + ".png", planes[c].data, w, h, 1, planes[c].step);
    Image swapped(w, h, 3);
    const Gex8u* const bgr[3] = {planes[2].data, planes[1].data, planes[0].data};
    run("Copy_8u_P3C3R (merge, swapped)", swapped,
        [&] { return gexiCopy_8u_P3C3R(bgr, planes[0].step, swapped.data, swapped.step, src.size()); });
    demo::write_png(outdir + "/swapped.png", swapped.data, w, h, 3, swapped.step);

    // A negative source step walks the image upwards: a vertical flip.
    Image flipped(w, h, 3);
    run("Copy_8u_C3R (negative step)", flipped,
        [&] { return gexiCopy_8u_C3R(src.row(h - 1), -src.step, flipped.data, flipped.step, src.size()); });
    demo::write_png(outdir + "/flipped.png", flipped.data, w, h, 3, flipped.step);

    // A circular mask; the flipped image shows through it onto a filled frame.
    Image mask(w, h, 1);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            double dx = x - w * 0.5, dy = y - h * 0.5;
            mask.row(y)[x] = dx * dx + dy * dy < 0.16 * h * h ? 1 : 0;
        }
    Image composite(w, h, 3);
    const Gex8u frame_colour[3] = {32, 48, 96};
    const Gex8u panel_colour[3] = {230, 200, 40};
    run("Set_8u_C3R", composite,
        [&] { return gexiSet_8u_C3R(frame_colour, composite.data, composite.step, composite.size()); });
    gexiSet_8u_C3R(panel_colour, composite.row(h / 10) + 3 * (w / 10), composite.step, {w * 8 / 10, h * 8 / 10});
    run("Copy_8u_C3MR (masked)", composite, [&] {
        return gexiCopy_8u_C3MR(flipped.data, flipped.step, composite.data, composite.step, src.size(), mask.data,
                                mask.step);
    });
    demo::write_png(outdir + "/masked.png", composite.data, w, h, 3, composite.step);

    // RGBA: alpha from a horizontal ramp, colour from the source; the AC4
    // copy leaves the alpha as it was.
    Image rgba(w, h, 4);
    Image ramp(w, h, 1);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) ramp.row(y)[x] = static_cast<Gex8u>(255 * x / (w - 1));
    gexiCopy_8u_C1C4R(ramp.data, ramp.step, rgba.data + 3, rgba.step, rgba.size());
    run("Copy_8u_C3AC4R", rgba, [&] { return gexiCopy_8u_C3AC4R(src.data, src.step, rgba.data, rgba.step, src.size()); });
    demo::write_png(outdir + "/rgba.png", rgba.data, w, h, 4, rgba.step);

    // The green plane as a gray RGB image.
    Image gray(w, h, 3);
    run("Dup_8u_C1C3R", gray, [&] { return gexiDup_8u_C1C3R(planes[1].data, planes[1].step, gray.data, gray.step, gray.size()); });
    demo::write_png(outdir + "/gray.png", gray.data, w, h, 3, gray.step);

    // Depth conversion: the green plane to 32f, then a contrast stretch of
    // [64, 192] onto the full 8-bit range on the way back.
    std::vector<Gex32f> green32(static_cast<std::size_t>(w) * h);
    const int step32 = w * static_cast<int>(sizeof(Gex32f));
    auto sum32 = [&] {
        return demo::crc32(reinterpret_cast<const unsigned char*>(green32.data()), green32.size() * sizeof(Gex32f)) ^
               0xffffffffu;
    };
    run_with("Convert_8u32f_C1R", sum32, [&] {
        return gexiConvert_8u32f_C1R(planes[1].data, planes[1].step, green32.data(), step32, src.size());
    });
    Image stretched(w, h, 1);
    run("Scale_32f8u_C1R (stretch 64..192)", stretched, [&] {
        return gexiScale_32f8u_C1R(green32.data(), step32, stretched.data, stretched.step, src.size(), 64.0f, 192.0f);
    });
    demo::write_png(outdir + "/green_stretched.png", stretched.data, w, h, 1, stretched.step);

    // Channel order, mirror and transpose.
    Image rgb_to_bgr(w, h, 3);
    const int order[3] = {2, 1, 0};
    run("SwapChannels_8u_C3R {2,1,0}", rgb_to_bgr, [&] {
        return gexiSwapChannels_8u_C3R(src.data, src.step, rgb_to_bgr.data, rgb_to_bgr.step, src.size(), order);
    });
    Image mirrored(w, h, 3);
    run("Mirror_8u_C3R (vertical axis)", mirrored, [&] {
        return gexiMirror_8u_C3R(src.data, src.step, mirrored.data, mirrored.step, src.size(), gexAxsVertical);
    });
    demo::write_png(outdir + "/mirrored.png", mirrored.data, w, h, 3, mirrored.step);
    Image transposed(h, w, 3);
    run("Transpose_8u_C3R", transposed, [&] {
        return gexiTranspose_8u_C3R(src.data, src.step, transposed.data, transposed.step, src.size());
    });
    demo::write_png(outdir + "/transposed.png", transposed.data, h, w, 3, transposed.step);

    // Arithmetic: the average of the image and its mirror, (a + b) / 2 with
    // ties to even (scale factor 1).
    Image blended(w, h, 3);
    run("Add_8u_C3RSfs (average, factor 1)", blended, [&] {
        return gexiAdd_8u_C3RSfs(src.data, src.step, mirrored.data, mirrored.step, blended.data, blended.step,
                                 src.size(), 1);
    });
    demo::write_png(outdir + "/average_with_mirror.png", blended.data, w, h, 3, blended.step);

    // Filtering with a user kernel: a 7x7 binomial blur (taps 1 6 15 20 15 6 1
    // in both directions, divisor 4096), borders replicated.
    {
        const int k1[7] = {1, 6, 15, 20, 15, 6, 1};
        Gex16s taps[49];
        for (int j = 0; j < 7; ++j)
            for (int i = 0; i < 7; ++i) taps[j * 7 + i] = static_cast<Gex16s>(k1[j] * k1[i]);
        int specSize = 0, bufSize = 0;
        GexStatus st = gexiFilterBorderGetSize({7, 7}, src.size(), gex8u, gex16s, 3, &specSize, &bufSize);
        std::vector<Gex8u> record(static_cast<std::size_t>(specSize)), buf(static_cast<std::size_t>(bufSize));
        auto* rec = reinterpret_cast<GexiFilterBorderSpec*>(record.data());
        if (st >= 0) st = gexiFilterBorderInit_16s(taps, {7, 7}, 4096, gex8u, 3, gexRndNear, rec);
        if (st < 0) {
            std::fprintf(stderr, "filter set-up failed: %d\n", st);
            return 1;
        }
        Image blurred(w, h, 3);
        run("FilterBorder_8u_C3R (7x7 binomial)", blurred, [&] {
            return gexiFilterBorder_8u_C3R(src.data, src.step, blurred.data, blurred.step, src.size(), gexBorderRepl,
                                           nullptr, rec, buf.data());
        });
        demo::write_png(outdir + "/blurred.png", blurred.data, w, h, 3, blurred.step);
    }

    // Resizing: the whole image enlarged by 3/2 with three-lobe Lanczos,
    // edges replicated. Size query, Init into our block, then one run over
    // the whole destination as a single tile.
    {
        const GexiSize big{w * 3 / 2, h * 3 / 2};
        Gex32u specSize = 0, initSize = 0, bufSize = 0;
        GexStatus st = gexiResizeGetSize_8u(src.size(), big, gexiInterLanczos, 0, &specSize, &initSize);
        std::vector<Gex8u> record(specSize), init(initSize);
        auto* rec = reinterpret_cast<GexiResizeSpec*>(record.data());
        if (st >= 0) st = gexiResizeLanczosInit_8u(src.size(), big, 3, rec, init.data());
        if (st >= 0) st = gexiResizeGetBufferSize_8u(rec, big, 3, &bufSize);
        if (st < 0) {
            std::fprintf(stderr, "resize set-up failed: %d\n", st);
            return 1;
        }
        std::vector<Gex8u> buf(bufSize);
        Image enlarged(big.width, big.height, 3);
        run("ResizeLanczos_8u_C3R (x1.5)", enlarged, [&] {
            return gexiResizeLanczos_8u_C3R(src.data, src.step, enlarged.data, enlarged.step, {0, 0}, big,
                                            gexBorderRepl, nullptr, rec, buf.data());
        });
        demo::write_png(outdir + "/lanczos_x1.5.png", enlarged.data, big.width, big.height, 3, enlarged.step);
    }

    // Fourier transform (unscaled): the spectrum magnitude of the green channel, for any
    // image size (the DFT takes every width and height). The forward transform
    // goes to the packed layout; MagnitudePack expands it to a full-size
    // magnitude image, shown here on a log scale with the zero frequency in
    // the centre.
    {
        Image green(w, h, 1);
        gexiCopy_8u_C3C1R(src.data + 1, src.step, green.data, green.step, src.size());
        int fstep = 0, pstep = 0, mstep = 0;
        Gex32f* f = gexiMalloc_32f_C1(w, h, &fstep);
        Gex32f* pack = gexiMalloc_32f_C1(w, h, &pstep);
        Gex32f* mag = gexiMalloc_32f_C1(w, h, &mstep);
        int specSize = 0, initSize = 0, bufSize = 0, magBufSize = 0;
        GexStatus st = gexiConvert_8u32f_C1R(green.data, green.step, f, fstep, src.size());
        if (st >= 0) st = gexiDFTGetSize_R_32f(src.size(), 8, gexAlgHintNone, &specSize, &initSize, &bufSize);
        if (st >= 0) st = gexiMagnitudePackGetBufferSize_32f(1, src.size(), &magBufSize);
        std::vector<Gex8u> record(static_cast<std::size_t>(specSize)), init(static_cast<std::size_t>(initSize) + 1),
            buf(static_cast<std::size_t>(std::max(bufSize, magBufSize)) + 1);
        auto* rec = reinterpret_cast<GexiDFTSpec*>(record.data());
        if (st >= 0) st = gexiDFTInit_R_32f(src.size(), 8, gexAlgHintNone, rec, init.data());
        if (!f || !pack || !mag || st < 0) {
            std::fprintf(stderr, "transform set-up failed: %d\n", st);
            return 1;
        }
        Image shown(w, h, 1);
        auto spectrum = [&] {
            GexStatus s = gexiDFTFwd_RToPack_32f_C1R(f, fstep, pack, pstep, rec, buf.data());
            if (s >= 0) s = gexiMagnitudePack_32f_C1R(pack, pstep, mag, mstep, src.size(), buf.data());
            return s;
        };
        run_with("DFTFwd_RToPack + MagnitudePack", [&] {
            // Display: log(1 + |F|) scaled to 0..255, quadrants swapped.
            double top = 0;
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    top = std::max(top, std::log1p(double(mag[static_cast<std::ptrdiff_t>(y) * (mstep / 4) + x])));
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x) {
                    const double v = std::log1p(double(mag[static_cast<std::ptrdiff_t>(y) * (mstep / 4) + x]));
                    shown.row((y + h / 2) % h)[(x + w / 2) % w] = static_cast<Gex8u>(top > 0 ? 255.0 * v / top : 0);
                }
            return checksum(shown);
        }, spectrum);
        demo::write_png(outdir + "/spectrum.png", shown.data, w, h, 1, shown.step);
        gexiFree(f);
        gexiFree(pack);
        gexiFree(mag);
    }

    std::printf("%-34s %12s  %-8s %s\n", "operation", "time (us)", "status", "checksum");
    for (const auto& r : g_rows) std::printf("%-34s %12.1f  %-8d %08x\n", r.op.c_str(), r.usec, r.status, r.sum);
    std::printf("\nimages written to %s/\n", outdir.c_str());
    for (const auto& r : g_rows)
        if (r.status < 0) return 1;
    return 0;
}
