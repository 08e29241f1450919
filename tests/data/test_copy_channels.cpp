// Channel-changing and masked copies: every form and depth on guarded images
// against a model written from the address formula, the vector row kernels
// against their scalar twins, and the checks.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <random>
#include <vector>

#include "data/copy_channels_kernels.hpp"
#include "gexdata.h"
#include "support/guarded.hpp"

namespace {

using gextest::Guarded;
using gextest::Layout;

template <class T>
bool same(T a, T b) {
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

// The export of each form for a depth; forms that differ only in the channel
// count are picked by n.
template <class T> struct Api;
#define API(D, T_)                                                                                 \
    template <> struct Api<T_> {                                                                   \
        static auto extract(int n) { return n == 3 ? &gexiCopy_##D##_C3C1R : &gexiCopy_##D##_C4C1R; } \
        static auto insert(int n) { return n == 3 ? &gexiCopy_##D##_C1C3R : &gexiCopy_##D##_C1C4R; }  \
        static auto channel(int n) { return n == 3 ? &gexiCopy_##D##_C3CR : &gexiCopy_##D##_C4CR; }   \
        static constexpr auto c3ac4 = &gexiCopy_##D##_C3AC4R;                                      \
        static constexpr auto ac4c3 = &gexiCopy_##D##_AC4C3R;                                      \
        static auto split(int n) { return n == 3 ? &gexiCopy_##D##_C3P3R : &gexiCopy_##D##_C4P4R; }   \
        static auto merge(int n) { return n == 3 ? &gexiCopy_##D##_P3C3R : &gexiCopy_##D##_P4C4R; }   \
        static auto masked(int n, bool ac4) {                                                      \
            return n == 1 ? &gexiCopy_##D##_C1MR                                                   \
                   : n == 3 ? &gexiCopy_##D##_C3MR                                                 \
                            : (ac4 ? &gexiCopy_##D##_AC4MR : &gexiCopy_##D##_C4MR);                 \
        }                                                                                          \
    };
API(8u, Gex8u)
API(16u, Gex16u)
API(16s, Gex16s)
API(32s, Gex32s)
API(32f, Gex32f)
#undef API

const int kWidths[] = {1, 2, 3, 5, 7, 15, 16, 17, 31, 33, 63, 64, 65, 127, 129, 200};

// The standard layouts plus two without gaps (steps equal to the rows, which
// the library runs as one row), one of them ending at an inaccessible page.
std::vector<Layout> layouts() {
    auto v = gextest::standard_layouts();
    v.push_back(Layout{0, 0, 1, false, false});
    v.push_back(Layout{0, 0, 0, false, true});
    return v;
}

// Every (width, height, source layout, destination layout): each layout with
// itself and with the next one, so steps also differ between operands.
void for_each_case(const std::function<void(int, int, const Layout&, const Layout&)>& fn) {
    const auto lay = layouts();
    for (std::size_t i = 0; i < lay.size(); ++i)
        for (std::size_t j : {i, (i + 1) % lay.size()})
            for (int w : kWidths) {
                const int h = 1 + w % 3;
                SCOPED_TRACE(testing::Message() << "w=" << w << " h=" << h << " layouts " << i << "," << j);
                fn(w, h, lay[i], lay[j]);
            }
}

// Mask bytes: zero or one of the non-zero values 1, 0x80, 0xff or any.
template <class Rng>
void fill_mask(Guarded<Gex8u>& m, Rng& rng) {
    for (int y = 0; y < m.height(); ++y)
        for (int x = 0; x < m.width(); ++x) {
            const unsigned r = rng() % 8;
            m.at(x, y) = r < 3 ? 0 : r == 3 ? 1 : r == 4 ? 0x80 : r == 5 ? 0xff : Gex8u(rng());
        }
}

template <class T>
class CopyChannels : public ::testing::Test {
protected:
    std::mt19937_64 rng{0x5eed + sizeof(T)};
};
using Depths = ::testing::Types<Gex8u, Gex16u, Gex16s, Gex32s, Gex32f>;
TYPED_TEST_SUITE(CopyChannels, Depths);

TYPED_TEST(CopyChannels, ExtractOneChannel) {
    using T = TypeParam;
    for (int n : {3, 4})
        for_each_case([&](int w, int h, const Layout& ls, const Layout& ld) {
            for (int c = 0; c < n; ++c) {
                Guarded<T> src(w, h, n, ls), dst(w, h, 1, ld);
                src.fill_random(this->rng);
                const auto before = src.snapshot();
                ASSERT_EQ(Api<T>::extract(n)(src.ptr() + c, src.step(), dst.ptr(), dst.step(), {w, h}), gexStsOk);
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x) ASSERT_TRUE(same(dst.at(x, y), src.at(x, y, c))) << x << "," << y;
                EXPECT_TRUE(dst.guards_ok());
                EXPECT_EQ(src.snapshot(), before);
            }
        });
}

TYPED_TEST(CopyChannels, InsertOneChannelLeavesTheOthers) {
    using T = TypeParam;
    for (int n : {3, 4})
        for_each_case([&](int w, int h, const Layout& ls, const Layout& ld) {
            for (int c = 0; c < n; ++c) {
                Guarded<T> src(w, h, 1, ls), dst(w, h, n, ld), old(w, h, n);
                src.fill_random(this->rng);
                dst.fill_random(this->rng);
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w * n; ++x) old.row(y)[x] = dst.row(y)[x];
                ASSERT_EQ(Api<T>::insert(n)(src.ptr(), src.step(), dst.ptr() + c, dst.step(), {w, h}), gexStsOk);
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x)
                        for (int k = 0; k < n; ++k)
                            ASSERT_TRUE(same(dst.at(x, y, k), k == c ? src.at(x, y) : old.at(x, y, k)))
                                << x << "," << y << " channel " << k;
                EXPECT_TRUE(dst.guards_ok());
            }
        });
}

TYPED_TEST(CopyChannels, ChannelToChannel) {
    using T = TypeParam;
    for (int n : {3, 4})
        for_each_case([&](int w, int h, const Layout& ls, const Layout& ld) {
            for (int cs = 0; cs < n; ++cs) {
                const int cd = (cs + w) % n;  // every pair turns up across the widths
                Guarded<T> src(w, h, n, ls), dst(w, h, n, ld), old(w, h, n);
                src.fill_random(this->rng);
                dst.fill_random(this->rng);
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w * n; ++x) old.row(y)[x] = dst.row(y)[x];
                ASSERT_EQ(Api<T>::channel(n)(src.ptr() + cs, src.step(), dst.ptr() + cd, dst.step(), {w, h}),
                          gexStsOk);
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x)
                        for (int k = 0; k < n; ++k)
                            ASSERT_TRUE(same(dst.at(x, y, k), k == cd ? src.at(x, y, cs) : old.at(x, y, k)))
                                << x << "," << y << " channel " << k;
                EXPECT_TRUE(dst.guards_ok());
            }
        });
}

TYPED_TEST(CopyChannels, ThreeChannelsToAndFromAC4) {
    using T = TypeParam;
    for_each_case([&](int w, int h, const Layout& ls, const Layout& ld) {
        {   // C3AC4: the destination's alpha keeps its 9
            Guarded<T> src(w, h, 3, ls), dst(w, h, 4, ld);
            src.fill_random(this->rng);
            dst.fill(T(9));
            ASSERT_EQ(Api<T>::c3ac4(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h}), gexStsOk);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x) {
                    for (int k = 0; k < 3; ++k) ASSERT_TRUE(same(dst.at(x, y, k), src.at(x, y, k)));
                    ASSERT_EQ(dst.at(x, y, 3), T(9));
                }
            EXPECT_TRUE(dst.guards_ok());
        }
        {   // AC4C3: the source's alpha goes nowhere
            Guarded<T> src(w, h, 4, ls), dst(w, h, 3, ld);
            src.fill_random(this->rng);
            ASSERT_EQ(Api<T>::ac4c3(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h}), gexStsOk);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    for (int k = 0; k < 3; ++k) ASSERT_TRUE(same(dst.at(x, y, k), src.at(x, y, k)));
            EXPECT_TRUE(dst.guards_ok());
        }
    });
}

TYPED_TEST(CopyChannels, InterleavedToAndFromPlanes) {
    using T = TypeParam;
    for (int n : {3, 4})
        for_each_case([&](int w, int h, const Layout& ls, const Layout& ld) {
            Guarded<T> packed(w, h, n, ls), back(w, h, n, ls);
            std::vector<std::unique_ptr<Guarded<T>>> planes;
            T* pl[4] = {};
            for (int c = 0; c < n; ++c) {
                planes.push_back(std::make_unique<Guarded<T>>(w, h, 1, ld));  // equal layouts share a step
                pl[c] = planes.back()->ptr();
            }
            packed.fill_random(this->rng);
            back.fill_random(this->rng);
            ASSERT_EQ(Api<T>::split(n)(packed.ptr(), packed.step(), pl, planes[0]->step(), {w, h}), gexStsOk);
            for (int c = 0; c < n; ++c) {
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x) ASSERT_TRUE(same(planes[c]->at(x, y), packed.at(x, y, c)));
                EXPECT_TRUE(planes[c]->guards_ok());
            }
            // Back again: planes with fresh values, read into an interleaved image.
            for (auto& p : planes) p->fill_random(this->rng);
            const T* cpl[4] = {pl[0], pl[1], pl[2], pl[3]};
            ASSERT_EQ(Api<T>::merge(n)(cpl, planes[0]->step(), back.ptr(), back.step(), {w, h}), gexStsOk);
            for (int c = 0; c < n; ++c)
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x) ASSERT_TRUE(same(back.at(x, y, c), planes[c]->at(x, y)));
            EXPECT_TRUE(back.guards_ok());
        });
}

TYPED_TEST(CopyChannels, MaskedCopy) {
    using T = TypeParam;
    struct Form { int n; bool ac4; };
    for (Form f : {Form{1, false}, Form{3, false}, Form{4, false}, Form{4, true}})
        for_each_case([&](int w, int h, const Layout& ls, const Layout& ld) {
            Guarded<T> src(w, h, f.n, ls), dst(w, h, f.n, ld), old(w, h, f.n);
            Guarded<Gex8u> mask(w, h, 1, ls);
            src.fill_random(this->rng);
            dst.fill_random(this->rng);
            fill_mask(mask, this->rng);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w * f.n; ++x) old.row(y)[x] = dst.row(y)[x];
            ASSERT_EQ(Api<T>::masked(f.n, f.ac4)(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h}, mask.ptr(),
                                                 mask.step()),
                      gexStsOk);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    for (int k = 0; k < f.n; ++k) {
                        const bool moved = mask.at(x, y) != 0 && !(f.ac4 && k == 3);
                        ASSERT_TRUE(same(dst.at(x, y, k), moved ? src.at(x, y, k) : old.at(x, y, k)))
                            << x << "," << y << " channel " << k << " mask " << int(mask.at(x, y));
                    }
            EXPECT_TRUE(dst.guards_ok());
        });
}

// A zero source step reads the same row for every destination row.
TYPED_TEST(CopyChannels, ZeroStepRepeatsTheRow) {
    using T = TypeParam;
    const int w = 37, h = 4;
    Guarded<T> src(w, 1, 3), dst(w, h, 1);
    src.fill_random(this->rng);
    ASSERT_EQ(Api<T>::extract(3)(src.ptr() + 2, 0, dst.ptr(), dst.step(), {w, h}), gexStsOk);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) ASSERT_TRUE(same(dst.at(x, y), src.at(x, 0, 2)));
    EXPECT_TRUE(dst.guards_ok());
}

// Null pointers in every position give -8, a size below 1 gives -6, the
// pointers are tested first, and nothing is written in any of these cases.
TYPED_TEST(CopyChannels, ChecksWriteNothing) {
    using T = TypeParam;
    const int w = 9, h = 2;
    Guarded<T> s1(w, h, 1), s4(w, h, 4), d1(w, h, 1), d4(w, h, 4);
    Guarded<Gex8u> m(w, h, 1);
    s1.fill_random(this->rng);
    s4.fill_random(this->rng);
    d1.fill_random(this->rng);
    d4.fill_random(this->rng);
    m.fill(1);
    const auto d1_before = d1.snapshot(), d4_before = d4.snapshot();
    const GexiSize ok{w, h};
    auto untouched = [&] { return d1.snapshot() == d1_before && d4.snapshot() == d4_before && d1.guards_ok() && d4.guards_ok(); };

    for (int n : {3, 4}) {
        const T* s = s4.ptr();
        T* d = d4.ptr();
        for (GexiSize bad : {GexiSize{0, h}, GexiSize{w, 0}, GexiSize{-1, h}, GexiSize{w, -5}}) {
            EXPECT_EQ(Api<T>::extract(n)(s, s4.step(), d1.ptr(), d1.step(), bad), gexStsSize);
            EXPECT_EQ(Api<T>::insert(n)(s1.ptr(), s1.step(), d, d4.step(), bad), gexStsSize);
            EXPECT_EQ(Api<T>::channel(n)(s, s4.step(), d, d4.step(), bad), gexStsSize);
            EXPECT_EQ(Api<T>::masked(n, false)(s, s4.step(), d, d4.step(), bad, m.ptr(), m.step()), gexStsSize);
        }
        // null before size: width 0 with a null pointer is still -8
        for (GexiSize roi : {ok, GexiSize{0, h}}) {
            EXPECT_EQ(Api<T>::extract(n)(nullptr, s4.step(), d1.ptr(), d1.step(), roi), gexStsNullPtr);
            EXPECT_EQ(Api<T>::extract(n)(s, s4.step(), nullptr, d1.step(), roi), gexStsNullPtr);
            EXPECT_EQ(Api<T>::insert(n)(nullptr, s1.step(), d, d4.step(), roi), gexStsNullPtr);
            EXPECT_EQ(Api<T>::insert(n)(s1.ptr(), s1.step(), nullptr, d4.step(), roi), gexStsNullPtr);
            EXPECT_EQ(Api<T>::channel(n)(nullptr, s4.step(), d, d4.step(), roi), gexStsNullPtr);
            EXPECT_EQ(Api<T>::channel(n)(s, s4.step(), nullptr, d4.step(), roi), gexStsNullPtr);
            for (bool ac4 : {false, true}) {
                auto f = Api<T>::masked(n, ac4);
                EXPECT_EQ(f(nullptr, s4.step(), d, d4.step(), roi, m.ptr(), m.step()), gexStsNullPtr);
                EXPECT_EQ(f(s, s4.step(), nullptr, d4.step(), roi, m.ptr(), m.step()), gexStsNullPtr);
                EXPECT_EQ(f(s, s4.step(), d, d4.step(), roi, nullptr, m.step()), gexStsNullPtr);
            }
        }
    }
    EXPECT_EQ(Api<T>::masked(1, false)(s1.ptr(), s1.step(), d1.ptr(), d1.step(), {w, 0}, m.ptr(), m.step()),
              gexStsSize);
    EXPECT_EQ(Api<T>::masked(1, false)(s1.ptr(), s1.step(), d1.ptr(), d1.step(), {0, h}, nullptr, m.step()),
              gexStsNullPtr);
    EXPECT_EQ(Api<T>::c3ac4(s4.ptr(), s4.step(), d4.ptr(), d4.step(), {0, h}), gexStsSize);
    EXPECT_EQ(Api<T>::c3ac4(nullptr, s4.step(), d4.ptr(), d4.step(), {0, h}), gexStsNullPtr);
    EXPECT_EQ(Api<T>::c3ac4(s4.ptr(), s4.step(), nullptr, d4.step(), ok), gexStsNullPtr);
    EXPECT_EQ(Api<T>::ac4c3(s4.ptr(), s4.step(), d4.ptr(), d4.step(), {w, 0}), gexStsSize);
    EXPECT_EQ(Api<T>::ac4c3(nullptr, s4.step(), d4.ptr(), d4.step(), ok), gexStsNullPtr);
    EXPECT_EQ(Api<T>::ac4c3(s4.ptr(), s4.step(), nullptr, d4.step(), {0, 0}), gexStsNullPtr);

    // Planar operands: the array, then each plane, each null on its own.
    for (int n : {3, 4}) {
        T* planes[4] = {d1.ptr(), d1.ptr() + 1, d1.ptr() + 2, d1.ptr() + 3};
        EXPECT_EQ(Api<T>::split(n)(s4.ptr(), s4.step(), planes, d1.step(), {0, h}), gexStsSize);
        EXPECT_EQ(Api<T>::split(n)(s4.ptr(), s4.step(), nullptr, d1.step(), ok), gexStsNullPtr);
        EXPECT_EQ(Api<T>::split(n)(nullptr, s4.step(), planes, d1.step(), ok), gexStsNullPtr);
        const T* cplanes[4] = {s1.ptr(), s1.ptr(), s1.ptr(), s1.ptr()};
        EXPECT_EQ(Api<T>::merge(n)(cplanes, s1.step(), d4.ptr(), d4.step(), {w, 0}), gexStsSize);
        EXPECT_EQ(Api<T>::merge(n)(nullptr, s1.step(), d4.ptr(), d4.step(), ok), gexStsNullPtr);
        EXPECT_EQ(Api<T>::merge(n)(cplanes, s1.step(), nullptr, d4.step(), ok), gexStsNullPtr);
        for (int c = 0; c < n; ++c)
            for (GexiSize roi : {ok, GexiSize{0, h}}) {
                T* p[4] = {planes[0], planes[1], planes[2], planes[3]};
                p[c] = nullptr;
                EXPECT_EQ(Api<T>::split(n)(s4.ptr(), s4.step(), p, d1.step(), roi), gexStsNullPtr) << c;
                const T* q[4] = {cplanes[0], cplanes[1], cplanes[2], cplanes[3]};
                q[c] = nullptr;
                EXPECT_EQ(Api<T>::merge(n)(q, s1.step(), d4.ptr(), d4.step(), roi), gexStsNullPtr) << c;
            }
    }
    EXPECT_TRUE(untouched());
}

// The green channel of an RGB row, by advancing the source by one byte.
TEST(CopyChannels8u, GreenOfRgb) {
    const int w = 50;
    std::vector<Gex8u> rgb(3 * w), green(w, 0);
    for (int x = 0; x < w; ++x) rgb[3 * x] = Gex8u(x), rgb[3 * x + 1] = Gex8u(100 + x), rgb[3 * x + 2] = Gex8u(200);
    ASSERT_EQ(gexiCopy_8u_C3C1R(rgb.data() + 1, 3 * w, green.data(), w, {w, 1}), gexStsOk);
    for (int x = 0; x < w; ++x) ASSERT_EQ(green[x], 100 + x);
}

// ---- the vector row kernels against their scalar twins ---------------------------
// One-row images whose last byte touches an inaccessible page, every width
// from 1 to 200, every channel offset.

template <class U>
class Kernels : public ::testing::Test {
protected:
    std::mt19937_64 rng{0xc0ffee + sizeof(U)};
    static constexpr Layout kEnd{5, 0, 1, false, true};

    // Run `vec` on a guarded destination and `ref` on a copy of it, then
    // compare the rows; f(kernel, dst pointer) makes the call.
    template <class F, class K>
    void same_as_ref(int w, int nd, const F& f, K vec, K ref) {
        Guarded<U> a(w, 1, nd, kEnd);
        a.fill_random(rng);
        std::vector<U> b(a.snapshot());
        f(vec, a.ptr());
        f(ref, b.data());
        ASSERT_EQ(a.snapshot(), b) << "w=" << w;
        ASSERT_TRUE(a.guards_ok()) << "w=" << w;
    }
};
using Elems = ::testing::Types<std::uint8_t, std::uint16_t, std::uint32_t>;
TYPED_TEST_SUITE(Kernels, Elems);

TYPED_TEST(Kernels, ChannelSelectingKernels) {
    using U = TypeParam;
    namespace ch = gex::chan;
    using K = void (*)(const U*, U*, std::int64_t);
    auto run = [&](auto n_tag) {
        constexpr int N = decltype(n_tag)::value;
        for (int w = 1; w <= 200; ++w)
            for (int c = 0; c < N; ++c) {
                Guarded<U> s1(w, 1, 1, this->kEnd), sn(w, 1, N, this->kEnd);
                s1.fill_random(this->rng);
                sn.fill_random(this->rng);
                const int cd = (c + 1) % N;
                this->same_as_ref(w, 1, [&](K k, U* d) { k(sn.ptr() + c, d, w); },
                                  K(ch::extract_vec<U, N>), K(ch::extract_ref<U, N>));
                this->same_as_ref(w, N, [&](K k, U* d) { k(s1.ptr(), d + c, w); },
                                  K(ch::insert_vec<U, N>), K(ch::insert_ref<U, N>));
                this->same_as_ref(w, N, [&](K k, U* d) { k(sn.ptr() + c, d + cd, w); },
                                  K(ch::channel_vec<U, N>), K(ch::channel_ref<U, N>));
            }
    };
    run(std::integral_constant<int, 3>{});
    run(std::integral_constant<int, 4>{});
}

TYPED_TEST(Kernels, AC4AndPlanarKernels) {
    using U = TypeParam;
    namespace ch = gex::chan;
    using K = void (*)(const U*, U*, std::int64_t);
    for (int w = 1; w <= 200; ++w) {
        Guarded<U> s3(w, 1, 3, this->kEnd), s4(w, 1, 4, this->kEnd);
        s3.fill_random(this->rng);
        s4.fill_random(this->rng);
        this->same_as_ref(w, 4, [&](K k, U* d) { k(s3.ptr(), d, w); }, K(ch::c3ac4_vec<U>), K(ch::c3ac4_ref<U>));
        this->same_as_ref(w, 3, [&](K k, U* d) { k(s4.ptr(), d, w); }, K(ch::ac4c3_vec<U>), K(ch::ac4c3_ref<U>));

        // Planes: n one-row guarded images; the vector kernel writes them, the
        // twin writes plain vectors. Both store kinds: with streaming stores
        // the kernel aligns the destinations by a first partial block, or
        // falls back where no pixel count aligns them.
        auto planar = [&](auto n_tag, auto nt_tag) {
            constexpr int N = decltype(n_tag)::value;
            constexpr bool NT = decltype(nt_tag)::value;
            Guarded<U>& packed = N == 3 ? s3 : s4;
            std::vector<std::unique_ptr<Guarded<U>>> pv;
            std::vector<std::vector<U>> pr(N);
            U* vp[N];
            U* rp[N];
            for (int c = 0; c < N; ++c) {
                pv.push_back(std::make_unique<Guarded<U>>(w, 1, 1, this->kEnd));
                pv.back()->fill_random(this->rng);
                pr[c] = pv.back()->snapshot();
                vp[c] = pv.back()->ptr();
                rp[c] = pr[c].data();
            }
            if constexpr (N == 3) ch::split3_vec<U, NT>(packed.ptr(), vp, w), ch::split3_ref<U>(packed.ptr(), rp, w);
            else ch::split4_vec<U, NT>(packed.ptr(), vp, w), ch::split4_ref<U>(packed.ptr(), rp, w);
            for (int c = 0; c < N; ++c) {
                ASSERT_EQ(pv[c]->snapshot(), pr[c]) << "w=" << w;
                ASSERT_TRUE(pv[c]->guards_ok());
                pv[c]->fill_random(this->rng);
            }
            const U* cp[N];
            for (int c = 0; c < N; ++c) cp[c] = pv[c]->ptr();
            using KM = void (*)(const U* const*, U*, std::int64_t);
            KM mv = N == 3 ? KM(ch::merge3_vec<U, NT>) : KM(ch::merge4_vec<U, NT>);
            KM mr = N == 3 ? KM(ch::merge3_ref<U>) : KM(ch::merge4_ref<U>);
            this->same_as_ref(w, N, [&](KM k, U* d) { k(cp, d, w); }, mv, mr);
        };
        planar(std::integral_constant<int, 3>{}, std::false_type{});
        planar(std::integral_constant<int, 4>{}, std::false_type{});
        planar(std::integral_constant<int, 3>{}, std::true_type{});
        planar(std::integral_constant<int, 4>{}, std::true_type{});
    }
}

TYPED_TEST(Kernels, MaskedKernels) {
    using U = TypeParam;
    namespace ch = gex::chan;
    using K = void (*)(const U*, U*, const std::uint8_t*, std::int64_t);
    for (int w = 1; w <= 200; ++w) {
        Guarded<Gex8u> m(w, 1, 1, this->kEnd);
        fill_mask(m, this->rng);
        auto run = [&](int n, K vec, K ref) {
            Guarded<U> s(w, 1, n, this->kEnd);
            s.fill_random(this->rng);
            this->same_as_ref(w, n, [&](K k, U* d) { k(s.ptr(), d, m.ptr(), w); }, vec, ref);
        };
        run(1, ch::masked_vec<U, 1>, ch::masked_ref<U, 1>);
        run(3, ch::masked_vec<U, 3>, ch::masked_ref<U, 3>);
        run(4, ch::masked_vec<U, 4>, ch::masked_ref<U, 4>);
        run(4, ch::masked_vec<U, 4, true>, ch::masked_ref<U, 4, true>);
    }
}

}  // namespace
