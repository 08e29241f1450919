// Tiles: any cut of the destination into tiles gives the pixels of one whole
// run, for every method, depth and channel count, with random grids (tiles
// inside bands, across them and at the edges, in 32-bit and _L forms), and
// tiles run at the same time on one record from several threads, each with
// its own scratch buffer.
#include <thread>
#include <vector>

#include "resize_test_common.hpp"

using rt::M;

namespace {

// Random cut points of [0, n): 0, a few interior points, n.
std::vector<int> cuts(int n, std::mt19937& rng) {
    std::vector<int> c{0};
    const int pieces = 1 + int(rng() % 4);
    for (int i = 1; i < pieces; ++i) c.push_back(int(rng() % unsigned(n)));
    c.push_back(n);
    std::sort(c.begin(), c.end());
    c.erase(std::unique(c.begin(), c.end()), c.end());
    return c;
}

template <class T, int C, M K>
void tiles_match_whole(unsigned seed, bool threads) {
    std::mt19937 rng(seed);
    const rt::Params params[] = {{0.0f, 0.5f, 3}, {1.0f, 0.0f, 2}, {0.3f, 0.4f, 3}};
    for (int trial = 0; trial < 6; ++trial) {
        const rt::Params p = params[trial % 3];
        const GexiSize src{6 + int(rng() % 40), 6 + int(rng() % 40)};
        const GexiSize dst{1 + int(rng() % 70), 1 + int(rng() % 70)};
        const bool large = trial & 1;
        SCOPED_TRACE(::testing::Message() << "src " << src.width << "x" << src.height << " dst " << dst.width << "x"
                                          << dst.height << " C" << C << " large " << large);
        rt::Source<T> s(src.width, src.height, C);
        s.randomize(rng);
        rt::Record rec = rt::make_record<T>(K, src, dst, p, large);
        ASSERT_EQ(rec.status, 0);
        const std::int64_t rowBytes = std::int64_t(dst.width) * C * sizeof(T);
        std::vector<T> whole(std::size_t(dst.width) * dst.height * C), tiled(whole.size());
        std::vector<std::uint8_t> buf;
        ASSERT_EQ((rt::run_tile<T, C, K>(rec, s.origin(), s.step(), {0, 0}, {dst.width, dst.height}, whole.data(),
                                          rowBytes, gexBorderRepl, buf, large)),
                  0);
        const std::vector<int> cx = cuts(dst.width, rng), cy = cuts(dst.height, rng);
        struct TileJob {
            GexiPointL off;
            GexiSizeL size;
        };
        std::vector<TileJob> jobs;
        for (std::size_t a = 0; a + 1 < cy.size(); ++a)
            for (std::size_t b = 0; b + 1 < cx.size(); ++b)
                jobs.push_back({{cx[b], cy[a]}, {cx[b + 1] - cx[b], cy[a + 1] - cy[a]}});
        // The tiles at the right and bottom edges ask for more than is left:
        // they are clipped to the destination.
        for (TileJob& j : jobs) {
            if (j.off.x + j.size.width == dst.width && (rng() & 1)) j.size.width += 3;
            if (j.off.y + j.size.height == dst.height && (rng() & 1)) j.size.height += 2;
        }
        std::vector<GexStatus> status(jobs.size(), -1);
        auto work = [&](std::size_t k) {
            std::vector<std::uint8_t> own;
            T* d = tiled.data() + (std::size_t(jobs[k].off.y) * dst.width + std::size_t(jobs[k].off.x)) * C;
            status[k] = rt::run_tile<T, C, K>(rec, s.origin(), s.step(), jobs[k].off, jobs[k].size, d, rowBytes,
                                              gexBorderRepl, own, large);
        };
        if (threads) {
            std::vector<std::thread> pool;
            for (std::size_t k = 0; k < jobs.size(); ++k) pool.emplace_back(work, k);
            for (auto& t : pool) t.join();
        } else {
            for (std::size_t k = 0; k < jobs.size(); ++k) work(k);
        }
        for (GexStatus st : status) EXPECT_GE(st, 0);
        EXPECT_TRUE(gextest::same_bits(tiled, whole));
    }
}

template <class T, M K>
void all_channels(unsigned seed) {
    tiles_match_whole<T, 1, K>(seed, false);
    tiles_match_whole<T, 3, K>(seed + 1, false);
    tiles_match_whole<T, 4, K>(seed + 2, true);
}

TEST(ResizeTiles, NearestAnyCutGivesTheWholeRun) {
    all_channels<Gex8u, M::Nearest>(1);
    all_channels<Gex16u, M::Nearest>(4);
    all_channels<Gex16s, M::Nearest>(7);
    all_channels<Gex32f, M::Nearest>(10);
}

TEST(ResizeTiles, LinearAnyCutGivesTheWholeRun) {
    all_channels<Gex8u, M::Linear>(21);
    all_channels<Gex16u, M::Linear>(24);
    all_channels<Gex16s, M::Linear>(27);
    all_channels<Gex32f, M::Linear>(30);
    all_channels<Gex64f, M::Linear>(33);
}

TEST(ResizeTiles, CubicAnyCutGivesTheWholeRun) {
    all_channels<Gex8u, M::Cubic>(41);
    all_channels<Gex16u, M::Cubic>(44);
    all_channels<Gex16s, M::Cubic>(47);
    all_channels<Gex32f, M::Cubic>(50);
}

TEST(ResizeTiles, LanczosAnyCutGivesTheWholeRun) {
    all_channels<Gex8u, M::Lanczos>(61);
    all_channels<Gex16u, M::Lanczos>(64);
    all_channels<Gex16s, M::Lanczos>(67);
    all_channels<Gex32f, M::Lanczos>(70);
}

// Many threads over one record at once, each over many small tiles of a
// larger image.
TEST(ResizeTiles, ConcurrentTilesShareOneRecord) {
    std::mt19937 rng(99);
    const GexiSize src{300, 200}, dst{451, 333};
    rt::Source<Gex8u> s(src.width, src.height, 3);
    s.randomize(rng);
    for (M m : {M::Linear, M::Cubic, M::Lanczos}) {
        rt::Record rec = rt::make_record<Gex8u>(m, src, dst);
        std::vector<Gex8u> whole(std::size_t(dst.width) * dst.height * 3), tiled(whole.size());
        std::vector<std::uint8_t> buf;
        auto run = [&](GexiPointL off, GexiSizeL size, Gex8u* out, std::vector<std::uint8_t>& b) {
            switch (m) {
            case M::Linear: return rt::run_tile<Gex8u, 3, M::Linear>(rec, s.origin(), s.step(), off, size, out, dst.width * 3, 1, b);
            case M::Cubic: return rt::run_tile<Gex8u, 3, M::Cubic>(rec, s.origin(), s.step(), off, size, out, dst.width * 3, 1, b);
            default: return rt::run_tile<Gex8u, 3, M::Lanczos>(rec, s.origin(), s.step(), off, size, out, dst.width * 3, 1, b);
            }
        };
        ASSERT_EQ(run({0, 0}, {dst.width, dst.height}, whole.data(), buf), 0);
        constexpr int kThreads = 4, kTile = 37;
        std::vector<int> failures(kThreads, 0);
        std::vector<std::thread> pool;
        for (int t = 0; t < kThreads; ++t)
            pool.emplace_back([&, t] {
                std::vector<std::uint8_t> own;
                int k = 0;
                for (int y = 0; y < dst.height; y += kTile)
                    for (int x = 0; x < dst.width; x += kTile, ++k)
                        if (k % kThreads == t &&
                            run({x, y}, {kTile, kTile}, tiled.data() + (std::size_t(y) * dst.width + x) * 3, own) < 0)
                            ++failures[t];
            });
        for (auto& th : pool) th.join();
        for (int f : failures) EXPECT_EQ(f, 0);
        EXPECT_TRUE(gextest::same_bits(tiled, whole));
    }
}

}  // namespace
