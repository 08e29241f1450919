// A minimal PNG writer for the demo: 8-bit gray, RGB or RGBA, stored
// (uncompressed) deflate blocks. Enough for a person to open the results.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace demo {

inline std::uint32_t crc32(const unsigned char* p, std::size_t n, std::uint32_t c = 0xffffffffu) {
    for (std::size_t i = 0; i < n; ++i) {
        c ^= p[i];
        for (int k = 0; k < 8; ++k) c = (c >> 1) ^ (0xedb88320u & (0u - (c & 1u)));
    }
    return c;
}

inline bool write_png(const std::string& path, const unsigned char* pixels, int width, int height, int channels,
                      int step) {
    std::vector<unsigned char> raw;  // filter byte 0 + row
    for (int y = 0; y < height; ++y) {
        raw.push_back(0);
        const unsigned char* r = pixels + static_cast<std::ptrdiff_t>(y) * step;
        raw.insert(raw.end(), r, r + static_cast<std::size_t>(width) * channels);
    }
    std::vector<unsigned char> z = {0x78, 0x01};
    std::uint32_t a = 1, b = 0;
    for (unsigned char v : raw) {
        a = (a + v) % 65521u;
        b = (b + a) % 65521u;
    }
    for (std::size_t off = 0; off < raw.size() || off == 0; off += 65535) {
        std::size_t len = std::min<std::size_t>(65535, raw.size() - off);
        z.push_back(off + len >= raw.size() ? 1 : 0);
        z.push_back(len & 0xff);
        z.push_back(len >> 8);
        z.push_back(~len & 0xff);
        z.push_back((~len >> 8) & 0xff);
        z.insert(z.end(), raw.begin() + off, raw.begin() + off + len);
        if (raw.empty()) break;
    }
    const std::uint32_t adler = (b << 16) | a;
    for (int s = 24; s >= 0; s -= 8) z.push_back((adler >> s) & 0xff);

    FILE* f = std::fopen(path.c_str(), "wb");
    if (!f) return false;
    auto be32 = [&](std::uint32_t v) {
        unsigned char q[4] = {static_cast<unsigned char>(v >> 24), static_cast<unsigned char>(v >> 16),
                              static_cast<unsigned char>(v >> 8), static_cast<unsigned char>(v)};
        std::fwrite(q, 1, 4, f);
    };
    auto chunk = [&](const char* type, const std::vector<unsigned char>& data) {
        be32(static_cast<std::uint32_t>(data.size()));
        std::vector<unsigned char> td(type, type + 4);
        td.insert(td.end(), data.begin(), data.end());
        std::fwrite(td.data(), 1, td.size(), f);
        be32(crc32(td.data(), td.size()) ^ 0xffffffffu);
    };
    static const unsigned char sig[8] = {0x89, 'P', 'N', 'G', 0x0d, 0x0a, 0x1a, 0x0a};
    std::fwrite(sig, 1, 8, f);
    const unsigned char colour = channels == 1 ? 0 : channels == 3 ? 2 : 6;
    std::vector<unsigned char> ihdr = {
        static_cast<unsigned char>(width >> 24), static_cast<unsigned char>(width >> 16),
        static_cast<unsigned char>(width >> 8), static_cast<unsigned char>(width),
        static_cast<unsigned char>(height >> 24), static_cast<unsigned char>(height >> 16),
        static_cast<unsigned char>(height >> 8), static_cast<unsigned char>(height),
        8, colour, 0, 0, 0};
    chunk("IHDR", ihdr);
    chunk("IDAT", z);
    chunk("IEND", {});
    return std::fclose(f) == 0;
}

}  // namespace demo
