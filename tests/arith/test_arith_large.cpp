// The _L forms of Add, Sub, Mul and their constant forms: small calls are
// handed to the 32-bit form (same pixels, same statuses, same check order);
// calls that cannot be are not checked, return 0 for a height below 1, and go
// row by row in chunks (to the gexs primitive for two-operand C1, C3, C4
// forms, to the 32-bit wrapper with a one-row ROI for AC4 and constant
// forms), with no trace of the chunking in the pixels.
#include "arith_test_common.hpp"

namespace {

using namespace arithtest;

template <class T>
using BinL = std::function<GexStatus(const T*, Gex64s, const T*, Gex64s, T*, Gex64s, GexiSizeL, int)>;
template <class T>
using BinIL = std::function<GexStatus(const T*, Gex64s, T*, Gex64s, GexiSizeL, int)>;
template <class T>
using ConL = std::function<GexStatus(const T*, Gex64s, const T*, T*, Gex64s, GexiSizeL, int)>;
template <class T>
using ConIL = std::function<GexStatus(const T*, T*, Gex64s, GexiSizeL, int)>;

// One kind of form: the 32-bit entry and its _L twin, with the channels of
// its layout. Constant forms take their value array through the callables.
template <class T>
struct Pair {
    const char* name;
    int ch;
    Bin<T> f;
    BinL<T> fl;
    BinI<T> fi;
    BinIL<T> fil;
    Con<T> c;
    ConL<T> cl;
    ConI<T> ci;
    ConIL<T> cil;
};

#define PAIR_BIN(NAME, D, T, LAY, CH)                                                                         \
    Pair<T> {                                                                                                 \
        #NAME "_" #D "_" #LAY, CH, gexi##NAME##_##D##_##LAY##RSfs, gexi##NAME##_##D##_##LAY##RSfs_L,          \
            gexi##NAME##_##D##_##LAY##IRSfs, gexi##NAME##_##D##_##LAY##IRSfs_L, {}, {}, {}, {}                \
    }
#define PAIR_CON(NAME, D, T, LAY, CH, V)                                                                      \
    Pair<T> {                                                                                                 \
        #NAME "_" #D "_" #LAY, CH, {}, {}, {}, {},                                                            \
            [](const T* a, int sa, const T* v, T* d, int sd, GexiSize r, int s) {                             \
                return gexi##NAME##_##D##_##LAY##RSfs(a, sa, V, d, sd, r, s);                                 \
            },                                                                                                \
            [](const T* a, Gex64s sa, const T* v, T* d, Gex64s sd, GexiSizeL r, int s) {                      \
                return gexi##NAME##_##D##_##LAY##RSfs_L(a, sa, V, d, sd, r, s);                               \
            },                                                                                                \
            [](const T* v, T* d, int sd, GexiSize r, int s) { return gexi##NAME##_##D##_##LAY##IRSfs(V, d, sd, r, s); }, \
            [](const T* v, T* d, Gex64s sd, GexiSizeL r, int s) {                                             \
                return gexi##NAME##_##D##_##LAY##IRSfs_L(V, d, sd, r, s);                                     \
            }                                                                                                 \
    }

const Pair<Gex8u> kAdd8uC1 = PAIR_BIN(Add, 8u, Gex8u, C1, 1);
const Pair<Gex16s> kSub16sC3 = PAIR_BIN(Sub, 16s, Gex16s, C3, 3);
const Pair<Gex16u> kMul16uC4 = PAIR_BIN(Mul, 16u, Gex16u, C4, 4);
const Pair<Gex8u> kSub8uAC4 = PAIR_BIN(Sub, 8u, Gex8u, AC4, 4);
const Pair<Gex16u> kAddC16uC1 = PAIR_CON(AddC, 16u, Gex16u, C1, 1, v[0]);
const Pair<Gex8u> kMulC8uC3 = PAIR_CON(MulC, 8u, Gex8u, C3, 3, v);
const Pair<Gex16s> kSubC16sAC4 = PAIR_CON(SubC, 16s, Gex16s, AC4, 4, v);
const Pair<Gex16u> kSubC16uC4 = PAIR_CON(SubC, 16u, Gex16u, C4, 4, v);

// 32f pairs (no factor).
const Pair<Gex32f> kMul32fAC4{
    "Mul_32f_AC4",
    4,
    ARITH_BIN_32F_ONE(Mul, AC4),
    [](const Gex32f* a, Gex64s sa, const Gex32f* b, Gex64s sb, Gex32f* d, Gex64s sd, GexiSizeL r, int) {
        return gexiMul_32f_AC4R_L(a, sa, b, sb, d, sd, r);
    },
    ARITH_BIN_32F_ONE_I(Mul, AC4),
    [](const Gex32f* a, Gex64s sa, Gex32f* b, Gex64s sb, GexiSizeL r, int) {
        return gexiMul_32f_AC4IR_L(a, sa, b, sb, r);
    },
    {}, {}, {}, {}};
const Pair<Gex32f> kAddC32fC3{
    "AddC_32f_C3", 3, {}, {}, {}, {},
    [](const Gex32f* a, int sa, const Gex32f* v, Gex32f* d, int sd, GexiSize r, int) {
        return gexiAddC_32f_C3R(a, sa, v, d, sd, r);
    },
    [](const Gex32f* a, Gex64s sa, const Gex32f* v, Gex32f* d, Gex64s sd, GexiSizeL r, int) {
        return gexiAddC_32f_C3R_L(a, sa, v, d, sd, r);
    },
    [](const Gex32f* v, Gex32f* d, int sd, GexiSize r, int) { return gexiAddC_32f_C3IR(v, d, sd, r); },
    [](const Gex32f* v, Gex32f* d, Gex64s sd, GexiSizeL r, int) { return gexiAddC_32f_C3IR_L(v, d, sd, r); }};

// Runs the 32-bit form and the _L form on identical copies of the same
// images with the given steps (the _L form's may differ) and compares
// statuses and every byte of the images.
template <class T>
void same_as_32(const Pair<T>& p, int w, int h, int s, const T* v, std::int64_t stepL, std::mt19937_64& rng) {
    SCOPED_TRACE(p.name);
    const Layout lay{};
    Guarded<T> a1(w, h, p.ch, lay), b1(w, h, p.ch, lay), d1(w, h, p.ch, lay);
    Guarded<T> a2(w, h, p.ch, lay), b2(w, h, p.ch, lay), d2(w, h, p.ch, lay);
    fill_rnd(a1, rng);
    fill_rnd(b1, rng);
    fill_rnd(d1, rng);
    for (int y = 0; y < h; ++y)
        for (std::int64_t i = 0; i < a1.row_elems(); ++i) {
            a2.row(y)[i] = a1.row(y)[i];
            b2.row(y)[i] = b1.row(y)[i];
            d2.row(y)[i] = d1.row(y)[i];
        }
    const GexiSize r{w, h};
    const GexiSizeL rl{w, h};
    // With stepL the _L call uses that step for every image (only row 0 is
    // then touched, so h must be 1 unless stepL is the real step).
    const std::int64_t sa = stepL ? stepL : a2.step(), sb = stepL ? stepL : b2.step(), sd = stepL ? stepL : d2.step();
    if (p.f) {
        EXPECT_EQ(p.fl(a2.ptr(), sa, b2.ptr(), sb, d2.ptr(), sd, rl, s),
                  p.f(a1.ptr(), a1.step(), b1.ptr(), b1.step(), d1.ptr(), d1.step(), r, s));
        EXPECT_EQ(p.fil(a2.ptr(), sa, b2.ptr(), sb, rl, s), p.fi(a1.ptr(), a1.step(), b1.ptr(), b1.step(), r, s));
    } else {
        EXPECT_EQ(p.cl(a2.ptr(), sa, v, d2.ptr(), sd, rl, s), p.c(a1.ptr(), a1.step(), v, d1.ptr(), d1.step(), r, s));
        EXPECT_EQ(p.cil(v, b2.ptr(), sb, rl, s), p.ci(v, b1.ptr(), b1.step(), r, s));
    }
    for (auto [g1, g2] : {std::pair{&a1, &a2}, {&b1, &b2}, {&d1, &d2}})
        for (int y = 0; y < h; ++y)
            for (std::int64_t i = 0; i < a1.row_elems(); ++i)
                ASSERT_TRUE(agree(g1->row(y)[i], g2->row(y)[i])) << "row " << y << " element " << i;
    EXPECT_TRUE(a2.guards_ok() && b2.guards_ok() && d2.guards_ok());
}

template <class T>
void statuses_as_32(const Pair<T>& p, const T* v) {
    SCOPED_TRACE(p.name);
    T buf[64] = {};
    T* q = buf + 32;  // rows 8 bytes above and below stay inside
    for (GexiSize r : {GexiSize{3, 2}, GexiSize{0, 2}, GexiSize{3, 0}, GexiSize{-1, 1}}) {
        const GexiSizeL rl{r.width, r.height};
        for (int nulls = 0; nulls < 4; ++nulls) {
            T* a = nulls == 1 ? nullptr : q;
            T* b = nulls == 2 ? nullptr : q;
            T* d = nulls == 3 ? nullptr : q;
            if (p.f) {
                EXPECT_EQ(p.fl(a, 0, b, 8, d, -8, rl, 0), p.f(a, 0, b, 8, d, -8, r, 0));
                EXPECT_EQ(p.fil(a, 0, d, 8, rl, 0), p.fi(a, 0, d, 8, r, 0));
            } else {
                EXPECT_EQ(p.cl(a, 0, v, d, 8, rl, 0), p.c(a, 0, v, d, 8, r, 0));
                EXPECT_EQ(p.cil(v, d, 8, rl, 0), p.ci(v, d, 8, r, 0));
                if (p.ch > 1) {
                    EXPECT_EQ(p.cl(a, 0, nullptr, d, 8, rl, 0), p.c(a, 0, nullptr, d, 8, r, 0));
                }
            }
        }
    }
}

TEST(ArithLarge, SmallCallsForward) {
    std::mt19937_64 rng(71);
    const Gex8u v8[3] = {0, 1, 7};
    const Gex16u v16[4] = {0, 3, 65535, 9}, z16[4] = {};
    const Gex16s v16s[3] = {-5, 100, 0};
    const Gex32f vf[3] = {0.5f, -1.0f, 2.0f};
    for (int w : {1, 7, 64, 65})
        for (int s : {0, 1, 3, -2, 20, -20}) {
            same_as_32(kAdd8uC1, w, 3, s, static_cast<const Gex8u*>(nullptr), 0, rng);
            same_as_32(kSub16sC3, w, 2, s, static_cast<const Gex16s*>(nullptr), 0, rng);
            same_as_32(kMul16uC4, w, 2, s, static_cast<const Gex16u*>(nullptr), 0, rng);
            same_as_32(kSub8uAC4, w, 2, s, static_cast<const Gex8u*>(nullptr), 0, rng);
            same_as_32(kAddC16uC1, w, 2, s, v16, 0, rng);
            same_as_32(kAddC16uC1, w, 2, s, z16, 0, rng);
            same_as_32(kMulC8uC3, w, 2, s, v8, 0, rng);
            same_as_32(kSubC16sAC4, w, 2, s, v16s, 0, rng);
            same_as_32(kSubC16uC4, w, 2, s, z16, 0, rng);
        }
    same_as_32(kMul32fAC4, 33, 2, 0, static_cast<const Gex32f*>(nullptr), 0, rng);
    same_as_32(kAddC32fC3, 33, 2, 0, vf, 0, rng);
    // Statuses and their order, folding included: C3 and C4 with a null
    // pointer and width 0 report the size, C1 and AC4 the pointer.
    statuses_as_32(kAdd8uC1, v8);
    statuses_as_32(kSub16sC3, v16s);
    statuses_as_32(kMul16uC4, v16);
    statuses_as_32(kSub8uAC4, v8);
    statuses_as_32(kAddC16uC1, z16);
    statuses_as_32(kMulC8uC3, v8);
    statuses_as_32(kSubC16sAC4, v16s);
    statuses_as_32(kSubC16uC4, z16);
    EXPECT_EQ(gexiAdd_8u_C3RSfs_L(nullptr, 0, nullptr, 0, nullptr, 0, {0, 1}, 0), gexStsSize);
    EXPECT_EQ(gexiAdd_8u_C1RSfs_L(nullptr, 0, nullptr, 0, nullptr, 0, {0, 1}, 0), gexStsNullPtr);
}

// A call that cannot be narrowed checks nothing: a height below 1 returns 0
// even with null pointers and a negative width, and a row without pixels
// does no work.
TEST(ArithLarge, UnnarrowedEmptyCallsReturnOk) {
    const Gex64s big = 0x7fffffff;
    const Gex8u v3[3] = {1, 2, 3};
    for (GexiSizeL r : {GexiSizeL{5, 0}, GexiSizeL{-4, -1}, GexiSizeL{0, 3}, GexiSizeL{-2, 2}}) {
        EXPECT_EQ(gexiAdd_8u_C1RSfs_L(nullptr, big, nullptr, 0, nullptr, 0, r, 0), gexStsOk);
        EXPECT_EQ(gexiSub_16s_C3IRSfs_L(nullptr, 1, nullptr, -big, r, 3), gexStsOk);
        EXPECT_EQ(gexiMul_32f_AC4R_L(nullptr, 1, nullptr, 1, nullptr, 0x100000000LL, r), gexStsOk);
        EXPECT_EQ(gexiAddC_8u_C3RSfs_L(nullptr, big, v3, nullptr, 0, r, 0), gexStsOk);
        EXPECT_EQ(gexiMulC_16u_C1IRSfs_L(2, nullptr, -0x123456789LL, r, 1), gexStsOk);
    }
    // Forwarded, the same sizes fail.
    Gex8u px[4] = {};
    EXPECT_EQ(gexiAdd_8u_C1RSfs_L(px, 1, px, 1, px, 1, {5, 0}, 0), gexStsSize);
    EXPECT_EQ(gexiAdd_8u_C1RSfs_L(nullptr, 1, px, 1, px, 1, {5, 0}, 0), gexStsNullPtr);
    // Too large an area also prevents the narrowing (0x10000 x 0x8000 bytes = 2^31).
    EXPECT_EQ(gexiAdd_8u_C1RSfs_L(nullptr, 1, nullptr, 1, nullptr, 1, {0x10000, -0x8000}, 0), gexStsOk);
    EXPECT_EQ(gexiAdd_8u_C1RSfs_L(nullptr, 1, nullptr, 1, nullptr, 1, {0x10000, -0x7fff}, 0), gexStsNullPtr);
}

// Height 1 with a step that cannot be narrowed: only row 0 is touched, and
// the chunked path gives the pixels of the 32-bit form.
TEST(ArithLarge, UnnarrowedRowMatches) {
    std::mt19937_64 rng(72);
    const Gex8u v8[3] = {3, 1, 200};
    const Gex16u v16[4] = {0, 3, 65535, 9}, z16[4] = {};
    const Gex16s v16s[3] = {-5, 100, 0};
    const Gex32f vf[3] = {0.5f, -1.0f, 2.0f};
    for (std::int64_t step : {0x80000000LL, -0x80000000LL, 0x7fffffffLL, 0x1000000000LL})
        for (int w : {1, 33, 200})
            for (int s : {0, 1, 5, -3, 40}) {
                same_as_32(kAdd8uC1, w, 1, s, static_cast<const Gex8u*>(nullptr), step, rng);
                same_as_32(kSub16sC3, w, 1, s, static_cast<const Gex16s*>(nullptr), step, rng);
                same_as_32(kMul16uC4, w, 1, s, static_cast<const Gex16u*>(nullptr), step, rng);
                same_as_32(kSub8uAC4, w, 1, s, static_cast<const Gex8u*>(nullptr), step, rng);
                same_as_32(kAddC16uC1, w, 1, s, v16, step, rng);
                same_as_32(kAddC16uC1, w, 1, s, z16, step, rng);
                same_as_32(kMulC8uC3, w, 1, s, v8, step, rng);
                same_as_32(kSubC16sAC4, w, 1, s, v16s, step, rng);
                same_as_32(kSubC16uC4, w, 1, s, z16, step, rng);
                same_as_32(kMul32fAC4, w, 1, s, static_cast<const Gex32f*>(nullptr), step, rng);
                same_as_32(kAddC32fC3, w, 1, s, vf, step, rng);
                if (HasFatalFailure()) return;
            }
    // Unchecked: the chunk reports the failure, and nothing is written.
    Gex8u a[4] = {1, 2, 3, 4}, d[4] = {9, 9, 9, 9};
    EXPECT_EQ(gexiAdd_8u_C1RSfs_L(a, 0x80000000LL, nullptr, 0, d, 0, {4, 1}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiAdd_8u_AC4IRSfs_L(nullptr, 0x80000000LL, d, 0, {1, 1}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiAddC_8u_C3RSfs_L(a, 0x80000000LL, nullptr, d, 0, {1, 1}, 0), gexStsNullPtr);
    EXPECT_EQ(d[0], 9);
    // The one-row chunks of a 16u constant form keep its short path's order.
    EXPECT_EQ(gexiAddC_16u_C1RSfs_L(nullptr, 0x80000000LL, 0, nullptr, 0, {4, 1}, 0), gexStsNullPtr);
}

// The chunk drivers with small chunks, over several rows with steps of both
// signs: chunk boundaries never show in the pixels.
TEST(ArithLarge, ChunksAreInvisible) {
    std::mt19937_64 rng(73);
    const auto lays = gextest::standard_layouts();
    for (std::int64_t chunk : {1, 2, 5, 7, 64, 1000})
        for (const Layout& lay : lays) {
            const int w = 45, h = 3;
            // Two sources, C3, through the primitive.
            Guarded<Gex16s> a(w, h, 3, lay), b(w, h, 3, lay), d1(w, h, 3, lay), d2(w, h, 3, lay);
            fill_rnd(a, rng);
            fill_rnd(b, rng);
            ASSERT_EQ(gexiSub_16s_C3RSfs(a.ptr(), a.step(), b.ptr(), b.step(), d1.ptr(), d1.step(), {w, h}, 2), 0);
            ASSERT_EQ(gex::large_binary(a.ptr(), a.step(), b.ptr(), b.step(), d2.ptr(), d2.step(), GexiSizeL{w, h}, 3,
                                        chunk,
                                        [](const Gex16s* p, const Gex16s* q, Gex16s* o, int n) {
                                            return gex::gexsSub_16s_Sfs(p, q, o, n, 2);
                                        }),
                      gexStsOk);
            ASSERT_TRUE(gextest::same_bits(d1.snapshot(), d2.snapshot())) << "chunk " << chunk;
            ASSERT_TRUE(d2.guards_ok());
            // AC4, through the 32-bit form with one-row ROIs.
            Guarded<Gex8u> p(w, h, 4, lay), q(w, h, 4, lay), e1(w, h, 4, lay), e2(w, h, 4, lay);
            fill_rnd(p, rng);
            fill_rnd(q, rng);
            fill_rnd(e1, rng);
            for (int y = 0; y < h; ++y)
                for (int i = 0; i < 4 * w; ++i) e2.row(y)[i] = e1.row(y)[i];
            ASSERT_EQ(gexiMul_8u_AC4RSfs(p.ptr(), p.step(), q.ptr(), q.step(), e1.ptr(), e1.step(), {w, h}, 3), 0);
            ASSERT_EQ(gex::large_roi_3(p.ptr(), p.step(), q.ptr(), q.step(), e2.ptr(), e2.step(), GexiSizeL{w, h}, 4,
                                       chunk,
                                       [](const Gex8u* s1, const Gex8u* s2, Gex8u* o, GexiSize r) {
                                           return gexiMul_8u_AC4RSfs(s1, 4, s2, 4, o, 4, r, 3);
                                       }),
                      gexStsOk);
            ASSERT_TRUE(gextest::same_bits(e1.snapshot(), e2.snapshot())) << "chunk " << chunk;
            // A C3 constant, through the 32-bit form: the pattern restarts with every chunk.
            const Gex32f v[3] = {1.5f, -2.0f, 0.25f};
            Guarded<Gex32f> f(w, h, 3, lay), g1(w, h, 3, lay), g2(w, h, 3, lay);
            fill_rnd(f, rng);
            ASSERT_EQ(gexiMulC_32f_C3R(f.ptr(), f.step(), v, g1.ptr(), g1.step(), {w, h}), 0);
            ASSERT_EQ(gex::large_roi_2(f.ptr(), f.step(), g2.ptr(), g2.step(), GexiSizeL{w, h}, 3, chunk,
                                       [&](const Gex32f* s, Gex32f* o, GexiSize r) {
                                           return gexiMulC_32f_C3R(s, 4, v, o, 4, r);
                                       }),
                      gexStsOk);
            for (int y = 0; y < h; ++y)
                for (int i = 0; i < 3 * w; ++i)
                    ASSERT_TRUE(agree(g1.row(y)[i], g2.row(y)[i])) << "chunk " << chunk << " row " << y << " " << i;
            ASSERT_TRUE(g2.guards_ok());
        }
}

// The status of the last chunk is the call's; a negative one ends the call.
TEST(ArithLarge, LastChunkStatusWins) {
    Gex8u buf[64] = {};
    std::vector<int> calls;
    auto prim = [&](GexStatus first, GexStatus later) {
        return [&calls, first, later](const Gex8u*, const Gex8u*, Gex8u*, int n) {
            calls.push_back(n);
            return calls.size() == 1 ? first : later;
        };
    };
    EXPECT_EQ(gex::large_binary(buf, 0, buf, 0, buf, 0, GexiSizeL{10, 2}, 1, 4, prim(gexStsDivByZeroWarn, 0)), 0);
    EXPECT_EQ(calls, (std::vector<int>{4, 4, 2, 4, 4, 2}));
    calls.clear();
    EXPECT_EQ(gex::large_binary(buf, 0, buf, 0, buf, 0, GexiSizeL{10, 2}, 3, 4, prim(0, gexStsDivByZeroWarn)),
              gexStsDivByZeroWarn);
    EXPECT_EQ(calls, (std::vector<int>{12, 12, 6, 12, 12, 6}));
    calls.clear();
    EXPECT_EQ(gex::large_binary(buf, 0, buf, 0, buf, 0, GexiSizeL{10, 2}, 1, 4, prim(gexStsSize, 0)), gexStsSize);
    EXPECT_EQ(calls.size(), 1u);
}

}  // namespace
