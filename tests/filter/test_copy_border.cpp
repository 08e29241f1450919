// The border copies: every export (R, R_L, IR, IR_L of Const, Replicate,
// Mirror, Wrap) on guarded images against a pad model that reflects and wraps
// one step at a time, with border sizes from 0 to wider than the image; the
// in-place forms and pSrc == pDst; AC4 alpha kept everywhere; the check order
// and nothing written on failure; the worked edge cases; and the engine's
// row pieces (runs, the repeated pixel, the in-library MirrorR kind) against
// scalar twins.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "filter/copy_border_kernels.hpp"
#include "gexip.h"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::Layout;
namespace bc = gex::border_copy;

namespace {

enum class Fam { Const, Replicate, Mirror, Wrap };

template <class T>
struct Member {
    std::string name;
    Fam fam;
    int ch;
    bool ac4;
    GexStatus (*r)(const T*, int, GexiSize, T*, int, GexiSize, int, int, const T*);
    GexStatus (*rl)(const T*, Gex64s, GexiSizeL, T*, Gex64s, GexiSizeL, Gex64s, Gex64s, const T*);
    GexStatus (*ir)(T*, int, GexiSize, GexiSize, int, int, const T*);  // null for Const
    GexStatus (*irl)(T*, Gex64s, GexiSizeL, GexiSizeL, Gex64s, Gex64s, const T*);
    bool const_pointer() const { return fam == Fam::Const && ch > 1; }
};

// Adapters to one signature per form; VAL passes the constant: NO_VAL,
// BY_VALUE (one channel) or BY_POINTER.
#define NO_VAL(v)
#define BY_VALUE(v) , *v
#define BY_POINTER(v) , v
#define A_R(F, T, VAL)                                                                                      \
    [](const T* s, int ss, GexiSize sr, T* d, int ds, GexiSize dr, int t, int l, const T* v) -> GexStatus { \
        (void)v;                                                                                            \
        return F(s, ss, sr, d, ds, dr, t, l VAL(v));                                                           \
    }
#define A_RL(F, T, VAL)                                                                                     \
    [](const T* s, Gex64s ss, GexiSizeL sr, T* d, Gex64s ds, GexiSizeL dr, Gex64s t, Gex64s l,              \
       const T* v) -> GexStatus {                                                                           \
        (void)v;                                                                                            \
        return F(s, ss, sr, d, ds, dr, t, l VAL(v));                                                           \
    }
#define A_IR(F, T)                                                                       \
    [](T* s, int ss, GexiSize sr, GexiSize dr, int t, int l, const T*) -> GexStatus {    \
        return F(s, ss, sr, dr, t, l);                                                   \
    }
#define A_IRL(F, T, VAL)                                                                                      \
    [](T* s, Gex64s ss, GexiSizeL sr, GexiSizeL dr, Gex64s t, Gex64s l, const T* v) -> GexStatus {            \
        (void)v;                                                                                              \
        return F(s, ss, sr, dr, t, l VAL(v));                                                                    \
    }

#define M_CONST(D, T, L, CH, AC4, VAL)                                                                     \
    Member<T> {                                                                                           \
        "CopyConstBorder_" #D "_" #L, Fam::Const, CH, AC4, A_R(gexiCopyConstBorder_##D##_##L##R, T, VAL),  \
            A_RL(gexiCopyConstBorder_##D##_##L##R_L, T, VAL), nullptr,                                     \
            A_IRL(gexiCopyConstBorder_##D##_##L##IR_L, T, VAL)                                             \
    }
#define M_PLAIN(FAM, D, T, L, CH, AC4)                                                                         \
    Member<T> {                                                                                               \
        "Copy" #FAM "Border_" #D "_" #L, Fam::FAM, CH, AC4, A_R(gexiCopy##FAM##Border_##D##_##L##R, T, NO_VAL),      \
            A_RL(gexiCopy##FAM##Border_##D##_##L##R_L, T, NO_VAL), A_IR(gexiCopy##FAM##Border_##D##_##L##IR, T),     \
            A_IRL(gexiCopy##FAM##Border_##D##_##L##IR_L, T, NO_VAL)                                                  \
    }

template <class T>
std::vector<Member<T>> members();

#define DEPTH_MEMBERS(D, T, ...)                                                                              \
    template <>                                                                                               \
    std::vector<Member<T>> members<T>() {                                                                     \
        return {M_CONST(D, T, C1, 1, false, BY_VALUE),     M_CONST(D, T, C3, 3, false, BY_POINTER),                     \
                M_CONST(D, T, C4, 4, false, BY_POINTER),      M_CONST(D, T, AC4, 4, true, BY_POINTER),                     \
                M_PLAIN(Replicate, D, T, C1, 1, false), M_PLAIN(Replicate, D, T, C3, 3, false),              \
                M_PLAIN(Replicate, D, T, C4, 4, false), M_PLAIN(Replicate, D, T, AC4, 4, true),              \
                M_PLAIN(Mirror, D, T, C1, 1, false),    M_PLAIN(Mirror, D, T, C3, 3, false),                 \
                M_PLAIN(Mirror, D, T, C4, 4, false) __VA_ARGS__};                                            \
    }

DEPTH_MEMBERS(8u, Gex8u)
DEPTH_MEMBERS(16s, Gex16s)
DEPTH_MEMBERS(16u, Gex16u)
DEPTH_MEMBERS(32f, Gex32f, , M_PLAIN(Wrap, 32f, Gex32f, C1, 1, false))
DEPTH_MEMBERS(32s, Gex32s, , M_PLAIN(Wrap, 32s, Gex32s, C1, 1, false))

// ---- the pad model ------------------------------------------------------------------
// Where coordinate t of an axis of n pixels reads: the edge (replicate), a
// reflection about the edge pixels repeated until it lands inside (mirror,
// the edge not repeated), or n added or taken away until it lands inside.
std::int64_t pad_index(Fam f, std::int64_t t, std::int64_t n) {
    switch (f) {
        case Fam::Replicate: return std::clamp<std::int64_t>(t, 0, n - 1);
        case Fam::Mirror:
            if (n == 1) return 0;
            while (t < 0 || t >= n) {
                if (t < 0) t = -t;
                if (t >= n) t = 2 * (n - 1) - t;
            }
            return t;
        case Fam::Wrap:
            while (t < 0) t += n;
            while (t >= n) t -= n;
            return t;
        default: return -1;
    }
}

// The destination after the call: `src` holds the W x H source pixels row
// after row, `before` the destination as it was (its alpha stays with AC4).
template <class T>
std::vector<T> pad_model(const Member<T>& m, const std::vector<T>& src, int W, int H, const std::vector<T>& before,
                         int DW, int DH, int top, int left, const T* constant) {
    std::vector<T> out(before);
    const int ch = m.ch;
    for (int j = 0; j < DH; ++j)
        for (int i = 0; i < DW; ++i) {
            const int u = i - left, v = j - top;
            const bool inside = u >= 0 && u < W && v >= 0 && v < H;
            for (int c = 0; c < ch; ++c) {
                if (m.ac4 && c == 3) continue;
                T val;
                if (inside) val = src[(static_cast<std::size_t>(v) * W + u) * ch + c];
                else if (m.fam == Fam::Const) val = constant[c];
                else val = src[(pad_index(m.fam, v, H) * W + pad_index(m.fam, u, W)) * ch + c];
                out[(static_cast<std::size_t>(j) * DW + i) * ch + c] = val;
            }
        }
    return out;
}

struct Borders {
    int top, left, bottom, right;
};

std::vector<Borders> border_cases(int W, int H) {
    return {{0, 0, 0, 0},         {1, 2, 3, 1},       {3, 0, 0, 4},
            {0, W + 1, H + 2, 0}, {2 * H + 3, 3 * W + 1, 2 * H + 1, 2 * W + 5}, {1, 70, 2, 65}};
}

const GexiSize kSizes[] = {{1, 1}, {1, 5}, {5, 1}, {2, 2}, {3, 3}, {7, 4}, {33, 6}, {65, 3}};

template <class T>
std::vector<T> random_constant(std::mt19937& rng) {
    std::vector<T> c(4);
    for (T& v : c) v = Guarded<T>::random_value(rng);
    return c;
}

template <class T>
void run_forms(const Member<T>& m, GexiSize s, Borders b, Layout lay, std::mt19937& rng) {
    const int W = s.width, H = s.height;
    const int DW = W + b.left + b.right, DH = H + b.top + b.bottom;
    const auto cval = random_constant<T>(rng);
    const std::string what = m.name + " " + std::to_string(W) + "x" + std::to_string(H) + " t" +
                             std::to_string(b.top) + " l" + std::to_string(b.left) + " b" + std::to_string(b.bottom) +
                             " r" + std::to_string(b.right);
    Guarded<T> src(W, H, m.ch, lay);
    src.fill_random(rng);
    const auto s0 = src.snapshot();

    // R and R_L.
    for (int form = 0; form < 2; ++form) {
        Guarded<T> dst(DW, DH, m.ch, lay);
        dst.fill_random(rng);
        const auto d0 = dst.snapshot();
        const GexStatus st = form == 0 ? m.r(src.ptr(), src.step(), s, dst.ptr(), dst.step(), {DW, DH}, b.top,
                                             b.left, cval.data())
                                       : m.rl(src.ptr(), src.step(), GexiSizeL{W, H}, dst.ptr(), dst.step(),
                                              GexiSizeL{DW, DH}, b.top, b.left, cval.data());
        ASSERT_EQ(st, gexStsOk) << what << " form " << form;
        ASSERT_TRUE(gextest::same_bits(dst.snapshot(), pad_model(m, s0, W, H, d0, DW, DH, b.top, b.left, cval.data())))
            << what << " form " << form;
        ASSERT_TRUE(dst.guards_ok()) << what;
        ASSERT_TRUE(src.guards_ok()) << what;
        ASSERT_TRUE(gextest::same_bits(src.snapshot(), s0)) << what;
    }

    // IR, IR_L and (not Const) R with pSrc == pDst: the ROI inside the image.
    for (int form = 0; form < 4; ++form) {
        if (form == 0 && m.ir == nullptr) continue;
        if ((form == 2 || form == 3) && m.fam == Fam::Const) continue;
        Guarded<T> img(DW, DH, m.ch, lay);
        img.fill_random(rng);
        for (int v = 0; v < H; ++v)
            std::memcpy(&img.at(b.left, b.top + v), s0.data() + static_cast<std::size_t>(v) * W * m.ch,
                        sizeof(T) * W * m.ch);
        const auto d0 = img.snapshot();
        T* roi = &img.at(b.left, b.top);
        const int step = img.step();
        GexStatus st = gexStsErr;
        switch (form) {
            case 0: st = m.ir(roi, step, s, {DW, DH}, b.top, b.left, cval.data()); break;
            case 1: st = m.irl(roi, step, GexiSizeL{W, H}, GexiSizeL{DW, DH}, b.top, b.left, cval.data()); break;
            case 2: st = m.r(roi, step, s, roi, step, {DW, DH}, b.top, b.left, cval.data()); break;
            case 3:
                st = m.rl(roi, step, GexiSizeL{W, H}, roi, step, GexiSizeL{DW, DH}, b.top, b.left, cval.data());
                break;
        }
        ASSERT_EQ(st, gexStsOk) << what << " in place " << form;
        ASSERT_TRUE(gextest::same_bits(img.snapshot(), pad_model(m, s0, W, H, d0, DW, DH, b.top, b.left, cval.data())))
            << what << " in place " << form;
        ASSERT_TRUE(img.guards_ok()) << what << " in place " << form;
    }
}

template <class T>
void run_all_members(unsigned seed) {
    std::mt19937 rng(seed);
    const auto layouts = gextest::standard_layouts(false);
    for (const Member<T>& m : members<T>())
        for (GexiSize s : kSizes)
            for (Borders b : border_cases(s.width, s.height))
                for (std::size_t li = 0; li < layouts.size(); ++li) {
                    // Every layout on the small images, one on the larger ones.
                    if (s.width > 8 && li > 0) continue;
                    run_forms(m, s, b, layouts[li], rng);
                    if (::testing::Test::HasFatalFailure()) return;
                }
}

TEST(CopyBorder, EveryMember8u) { run_all_members<Gex8u>(1); }
TEST(CopyBorder, EveryMember16s) { run_all_members<Gex16s>(2); }
TEST(CopyBorder, EveryMember16u) { run_all_members<Gex16u>(3); }
TEST(CopyBorder, EveryMember32f) { run_all_members<Gex32f>(4); }
TEST(CopyBorder, EveryMember32s) { run_all_members<Gex32s>(5); }

TEST(CopyBorder, MemberCount) {
    std::size_t n = 0;
    auto count = [&](const auto& list) {
        for (const auto& m : list) n += 2 + (m.ir != nullptr) + 1;  // R, R_L, IR, IR_L
    };
    count(members<Gex8u>());
    count(members<Gex16s>());
    count(members<Gex16u>());
    count(members<Gex32f>());
    count(members<Gex32s>());
    EXPECT_EQ(n, 208u);
}

// ---- statuses ------------------------------------------------------------------------

template <class T>
void check_statuses(const Member<T>& m) {
    std::mt19937 rng(11);
    Guarded<T> src(4, 3, m.ch), dst(7, 6, m.ch);
    src.fill_random(rng);
    dst.fill_random(rng);
    const auto d0 = dst.snapshot();
    const auto cv = random_constant<T>(rng);
    const T* c = cv.data();
    const T* s = src.ptr();
    T* d = dst.ptr();
    const int ss = src.step(), ds = dst.step();
    const GexiSize S{4, 3}, D{7, 6};
    const GexiSize bad{0, 0};
    const T* badc = m.const_pointer() ? nullptr : c;
    const std::string n = m.name;

    // Null first, whatever else is wrong; steps before sizes; sizes before the constant.
    EXPECT_EQ(m.r(nullptr, 0, bad, d, 0, bad, -1, -1, badc), gexStsNullPtr) << n;
    EXPECT_EQ(m.r(s, 0, bad, nullptr, 0, bad, -1, -1, badc), gexStsNullPtr) << n;
    EXPECT_EQ(m.r(s, 0, bad, d, ds, bad, -1, -1, badc), gexStsStep) << n;
    EXPECT_EQ(m.r(s, ss, bad, d, -ds, bad, -1, -1, badc), gexStsStep) << n;
    struct SizeCase {
        GexiSize s, d;
        int top, left;
    };
    const SizeCase sizes[] = {{{0, 3}, D, 1, 2}, {{4, 0}, D, 1, 2}, {S, {0, 6}, 1, 2}, {S, {7, 0}, 1, 2},
                              {S, D, -1, 2},    {S, D, 1, -1},    {S, {5, 6}, 1, 2}, {S, {7, 3}, 1, 0},
                              {S, D, 4, 2},     {S, D, 1, 4}};
    for (const SizeCase& k : sizes) {
        EXPECT_EQ(m.r(s, ss, k.s, d, ds, k.d, k.top, k.left, badc), gexStsSize) << n;
        EXPECT_EQ(m.rl(s, ss, GexiSizeL{k.s.width, k.s.height}, d, ds, GexiSizeL{k.d.width, k.d.height}, k.top,
                       k.left, badc),
                  gexStsSize)
            << n;
    }
    if (m.const_pointer()) {
        EXPECT_EQ(m.r(s, ss, S, d, ds, D, 1, 2, nullptr), gexStsNullPtr) << n;
        EXPECT_EQ(m.rl(s, ss, GexiSizeL{4, 3}, d, ds, GexiSizeL{7, 6}, 1, 2, nullptr), gexStsNullPtr) << n;
    }
    // The 64-bit forms: the same order, and sums that would overflow.
    EXPECT_EQ(m.rl(nullptr, 0, GexiSizeL{0, 0}, d, 0, GexiSizeL{0, 0}, -1, -1, badc), gexStsNullPtr) << n;
    EXPECT_EQ(m.rl(s, 0, GexiSizeL{0, 0}, d, ds, GexiSizeL{0, 0}, -1, -1, badc), gexStsStep) << n;
    EXPECT_EQ(m.rl(s, std::numeric_limits<Gex64s>::min(), GexiSizeL{4, 3}, d, ds, GexiSizeL{7, 6}, 1, 2, c), gexStsStep);
    const Gex64s big = std::numeric_limits<Gex64s>::max();
    EXPECT_EQ(m.rl(s, ss, GexiSizeL{big, 3}, d, ds, GexiSizeL{big, 6}, 1, 2, c), gexStsSize) << n;
    EXPECT_EQ(m.rl(s, ss, GexiSizeL{4, big}, d, ds, GexiSizeL{7, big}, big, 0, c), gexStsSize) << n;
    EXPECT_TRUE(gextest::same_bits(dst.snapshot(), d0)) << n;
    EXPECT_TRUE(dst.guards_ok()) << n;

    // In place: null, step, sizes, constant.
    T* roi = &dst.at(2, 1);
    if (m.ir) {
        EXPECT_EQ(m.ir(nullptr, 0, bad, bad, -1, -1, badc), gexStsNullPtr) << n;
        EXPECT_EQ(m.ir(roi, 0, bad, bad, -1, -1, badc), gexStsStep) << n;
        for (const SizeCase& k : sizes) EXPECT_EQ(m.ir(roi, ds, k.s, k.d, k.top, k.left, badc), gexStsSize) << n;
    }
    EXPECT_EQ(m.irl(nullptr, 0, GexiSizeL{0, 0}, GexiSizeL{0, 0}, -1, -1, badc), gexStsNullPtr) << n;
    EXPECT_EQ(m.irl(roi, -1, GexiSizeL{0, 0}, GexiSizeL{0, 0}, -1, -1, badc), gexStsStep) << n;
    for (const SizeCase& k : sizes)
        EXPECT_EQ(m.irl(roi, ds, GexiSizeL{k.s.width, k.s.height}, GexiSizeL{k.d.width, k.d.height}, k.top, k.left,
                        badc),
                  gexStsSize)
            << n;
    if (m.const_pointer()) {
        EXPECT_EQ(m.irl(roi, ds, GexiSizeL{4, 3}, GexiSizeL{7, 6}, 1, 2, nullptr), gexStsNullPtr) << n;
    }
    EXPECT_TRUE(gextest::same_bits(dst.snapshot(), d0)) << n;
    EXPECT_TRUE(dst.guards_ok()) << n;

    // All checks pass: a valid call succeeds.
    EXPECT_EQ(m.r(s, ss, S, d, ds, D, 1, 2, c), gexStsOk) << n;
}

TEST(CopyBorder, CheckOrderAndNothingWritten) {
    for (const auto& m : members<Gex8u>()) check_statuses(m);
    for (const auto& m : members<Gex16s>()) check_statuses(m);
    for (const auto& m : members<Gex16u>()) check_statuses(m);
    for (const auto& m : members<Gex32f>()) check_statuses(m);
    for (const auto& m : members<Gex32s>()) check_statuses(m);
}

// ---- worked cases ----------------------------------------------------------------------

TEST(CopyBorder, SameSizeWithoutBordersIsACopy) {
    std::mt19937 rng(3);
    for (const auto& m : members<Gex16u>()) {
        Guarded<Gex16u> src(9, 4, m.ch), dst(9, 4, m.ch);
        src.fill_random(rng);
        dst.fill_random(rng);
        const auto d0 = dst.snapshot();
        const Gex16u c[4] = {1, 2, 3, 4};
        ASSERT_EQ(m.r(src.ptr(), src.step(), {9, 4}, dst.ptr(), dst.step(), {9, 4}, 0, 0, c), gexStsOk);
        auto want = src.snapshot();
        if (m.ac4)
            for (std::size_t i = 3; i < want.size(); i += 4) want[i] = d0[i];
        EXPECT_EQ(dst.snapshot(), want) << m.name;
    }
}

TEST(CopyBorder, MirrorReflectsPeriodically) {
    // H = 3: the rows above the ROI, going upwards, read 1, 2, 1, 0, 1, 2.
    Guarded<Gex8u> src(2, 3), dst(2, 9);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 2; ++x) src.at(x, y) = static_cast<Gex8u>(10 * y + x);
    ASSERT_EQ(gexiCopyMirrorBorder_8u_C1R(src.ptr(), src.step(), {2, 3}, dst.ptr(), dst.step(), {2, 9}, 6, 0),
              gexStsOk);
    const int upwards[6] = {1, 2, 1, 0, 1, 2};
    for (int k = 0; k < 6; ++k) EXPECT_EQ(dst.at(0, 5 - k), 10 * upwards[k]) << k;
    // Columns the same way: W = 3, a left border of 6.
    Guarded<Gex32f> row(3, 1), wide(10, 1);
    for (int x = 0; x < 3; ++x) row.at(x, 0) = static_cast<float>(x);
    ASSERT_EQ(gexiCopyMirrorBorder_32f_C1R(row.ptr(), row.step(), {3, 1}, wide.ptr(), wide.step(), {10, 1}, 0, 6),
              gexStsOk);
    const float want[10] = {2, 1, 0, 1, 2, 1, 0, 1, 2, 1};
    for (int i = 0; i < 10; ++i) EXPECT_EQ(wide.at(i, 0), want[i]) << i;
}

TEST(CopyBorder, MirrorOfOneRowOrColumn) {
    Guarded<Gex16s> row(4, 1), col(1, 4);
    for (int i = 0; i < 4; ++i) row.at(i, 0) = col.at(0, i) = static_cast<Gex16s>(100 + i);
    Guarded<Gex16s> a(10, 7), b(6, 11);
    ASSERT_EQ(gexiCopyMirrorBorder_16s_C1R(row.ptr(), row.step(), {4, 1}, a.ptr(), a.step(), {10, 7}, 3, 2), gexStsOk);
    ASSERT_EQ(gexiCopyMirrorBorder_16s_C1R(col.ptr(), col.step(), {1, 4}, b.ptr(), b.step(), {6, 11}, 4, 3), gexStsOk);
    const int across[10] = {2, 1, 0, 1, 2, 3, 2, 1, 0, 1};     // u = -2 .. 7
    const int down[11] = {2, 3, 2, 1, 0, 1, 2, 3, 2, 1, 0};      // v = -4 .. 6
    for (int y = 0; y < 7; ++y)  // every row is the single row, mirrored at its ends
        for (int x = 0; x < 10; ++x) EXPECT_EQ(a.at(x, y), 100 + across[x]) << x << "," << y;
    for (int y = 0; y < 11; ++y)  // every column is the single column
        for (int x = 0; x < 6; ++x) EXPECT_EQ(b.at(x, y), 100 + down[y]) << x << "," << y;
}

TEST(CopyBorder, WrapLeftBorderWiderThanTheRow) {
    Guarded<Gex32s> src(3, 2), dst(12, 2);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x) src.at(x, y) = 10 * y + x;
    ASSERT_EQ(gexiCopyWrapBorder_32s_C1R(src.ptr(), src.step(), {3, 2}, dst.ptr(), dst.step(), {12, 2}, 0, 7),
              gexStsOk);
    for (int y = 0; y < 2; ++y) {
        EXPECT_EQ(dst.at(6, y), 10 * y + 2);  // immediately left of the ROI: the last pixel
        for (int x = 0; x < 12; ++x) EXPECT_EQ(dst.at(x, y), 10 * y + ((x - 7) % 3 + 3) % 3) << x;
    }
}

TEST(CopyBorder, AlphaOfAc4IsNeverWritten) {
    // Alpha 9 in the destination everywhere, distinct alpha in the source.
    Guarded<Gex8u> src(5, 3, 4), dst(12, 9, 4);
    std::mt19937 rng(5);
    src.fill_random(rng);
    dst.fill(9);
    const Gex8u c[3] = {1, 2, 3};
    ASSERT_EQ(gexiCopyConstBorder_8u_AC4R(src.ptr(), src.step(), {5, 3}, dst.ptr(), dst.step(), {12, 9}, 2, 3, c),
              gexStsOk);
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < 12; ++x) EXPECT_EQ(dst.at(x, y, 3), 9);
    dst.fill(9);
    ASSERT_EQ(gexiCopyReplicateBorder_8u_AC4R(src.ptr(), src.step(), {5, 3}, dst.ptr(), dst.step(), {12, 9}, 4, 1),
              gexStsOk);
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < 12; ++x) EXPECT_EQ(dst.at(x, y, 3), 9);
    EXPECT_TRUE(dst.guards_ok());
}

// ---- the engine's pieces against scalar twins -----------------------------------------

bc::Kind engine_kind(int k) {
    const bc::Kind kinds[] = {bc::Kind::Replicate, bc::Kind::Mirror, bc::Kind::MirrorR, bc::Kind::Wrap};
    return kinds[k];
}

// The reflection that repeats the edge, one step at a time.
std::int64_t mirror_r_index(std::int64_t t, std::int64_t n) {
    while (t < 0 || t >= n) {
        if (t < 0) t = -t - 1;
        if (t >= n) t = 2 * n - 1 - t;
    }
    return t;
}

std::int64_t engine_model_index(int k, std::int64_t t, std::int64_t n) {
    switch (k) {
        case 0: return pad_index(Fam::Replicate, t, n);
        case 1: return pad_index(Fam::Mirror, t, n);
        case 2: return mirror_r_index(t, n);
        default: return pad_index(Fam::Wrap, t, n);
    }
}

const bc::Format kFormats[] = {{1, 1, false}, {1, 3, false}, {1, 4, false}, {1, 4, true}, {2, 1, false},
                               {2, 3, false}, {2, 4, true},  {4, 1, false}, {4, 3, false}, {4, 4, false},
                               {4, 4, true}};

TEST(CopyBorderEngine, RunsAgainstIndexModel) {
    std::mt19937 rng(17);
    const int widths[] = {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200};
    constexpr int G = 64;  // guard bytes around the output
    for (const bc::Format f : kFormats) {
        const int P = f.pixel();
        for (int W : widths) {
            std::vector<std::uint8_t> row(static_cast<std::size_t>(W) * P);
            for (auto& b : row) b = static_cast<std::uint8_t>(rng());
            for (int k = 0; k < 4; ++k) {
                const std::int64_t starts[] = {-1, -17, -static_cast<std::int64_t>(3 * W + 5), W, W + 3, 2 * W + 1};
                const std::int64_t counts[] = {1, 5, 17, 64, 2 * W + 3, 5 * W + 1};
                for (std::int64_t u0 : starts)
                    for (std::int64_t count : counts) {
                        std::vector<std::uint8_t> out(static_cast<std::size_t>(count * P + 2 * G));
                        for (auto& b : out) b = static_cast<std::uint8_t>(rng());
                        std::vector<std::uint8_t> want(out);
                        for (std::int64_t i = 0; i < count; ++i) {
                            const std::int64_t s = engine_model_index(k, u0 + i, W);
                            for (int b = 0; b < P; ++b)
                                if (!f.ac4 || b < 3 * f.E) want[G + i * P + b] = row[s * P + b];
                        }
                        bc::border_run(row.data(), out.data() + G, u0, count, W, engine_kind(k), f);
                        ASSERT_EQ(out, want) << "E" << f.E << " ch" << f.ch << (f.ac4 ? " ac4" : "") << " W " << W
                                             << " kind " << k << " u0 " << u0 << " count " << count;
                    }
            }
        }
    }
}

TEST(CopyBorderEngine, RepeatedPixel) {
    std::mt19937 rng(19);
    for (const bc::Format f : kFormats) {
        const int P = f.pixel();
        std::uint8_t px[16];
        for (auto& b : px) b = static_cast<std::uint8_t>(rng());
        for (int count = 0; count <= 70; ++count) {
            std::vector<std::uint8_t> out(static_cast<std::size_t>(count * P + 128));
            for (auto& b : out) b = static_cast<std::uint8_t>(rng());
            std::vector<std::uint8_t> want(out);
            for (int i = 0; i < count; ++i)
                for (int b = 0; b < P; ++b)
                    if (!f.ac4 || b < 3 * f.E) want[64 + i * P + b] = px[b];
            bc::splat_pixels(px, out.data() + 64, count, f);
            ASSERT_EQ(out, want) << "E" << f.E << " ch" << f.ch << " count " << count;
        }
    }
}

// MirrorR has no export: the engine's two-dimensional paths against the scalar
// twin, out of place and in place, and the twin against the index model.
TEST(CopyBorderEngine, MirrorRWholeImages) {
    std::mt19937 rng(23);
    for (const bc::Format f : kFormats) {
        const int P = f.pixel();
        for (int trial = 0; trial < 12; ++trial) {
            const int W = 1 + static_cast<int>(rng() % 9), H = 1 + static_cast<int>(rng() % 6);
            const int top = static_cast<int>(rng() % 14), left = static_cast<int>(rng() % 20);
            const int DW = W + left + static_cast<int>(rng() % 20), DH = H + top + static_cast<int>(rng() % 14);
            const std::int64_t ss = W * P + 7, ds = DW * P + 5;
            std::vector<std::uint8_t> src(static_cast<std::size_t>(ss * H));
            for (auto& b : src) b = static_cast<std::uint8_t>(rng());
            std::vector<std::uint8_t> a(static_cast<std::size_t>(ds * DH));
            for (auto& b : a) b = static_cast<std::uint8_t>(rng());
            const std::vector<std::uint8_t> a0 = a;
            std::vector<std::uint8_t> b = a, c = a;
            bc::copy_border(src.data(), ss, W, H, a.data(), ds, DW, DH, top, left, bc::Kind::MirrorR, f, nullptr);
            bc::copy_border_ref(src.data(), ss, W, H, b.data(), ds, DW, DH, top, left, bc::Kind::MirrorR, f, nullptr);
            ASSERT_EQ(a, b) << "out of place, trial " << trial;
            for (int v = 0; v < H; ++v)
                std::memcpy(c.data() + (top + v) * ds + left * P, src.data() + v * ss, static_cast<std::size_t>(W) * P);
            const std::vector<std::uint8_t> c0 = c;
            bc::copy_border_inplace(c.data() + top * ds + left * P, ds, W, H, DW, DH, top, left, bc::Kind::MirrorR, f,
                                    nullptr);
            // Alpha stays as it was: the old bytes in b, and in c the old
            // bytes around the ROI and the source's inside it.
            for (int y = 0; y < DH; ++y)
                for (int x = 0; x < DW; ++x)
                    for (int e = 0; e < P; ++e) {
                        const std::int64_t sy = mirror_r_index(y - top, H), sx = mirror_r_index(x - left, W);
                        const std::int64_t o = y * ds + x * P + e;
                        const bool alpha = f.ac4 && e >= 3 * f.E;
                        const std::uint8_t want = src[sy * ss + sx * P + e];
                        ASSERT_EQ(c[o], alpha ? c0[o] : want) << "in place, trial " << trial;
                        ASSERT_EQ(b[o], alpha ? a0[o] : want) << "twin, trial " << trial;
                    }
        }
    }
}

}  // namespace
