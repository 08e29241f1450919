// The built shared library against the list of exports: nothing exported that
// is not listed, every stub a single jump through its own slot, and the slots
// one contiguous table in name order. Missing exports are counted and printed
// while subsystems are still being built.
#include <dlfcn.h>
#include <elf.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "gexip.h"

namespace {

struct DynSym {
    std::string name;
    std::uint64_t value = 0;
    std::uint64_t size = 0;
    unsigned type = 0;
    unsigned bind = 0;
    bool defined = false;
};

struct Elf {
    std::vector<char> bytes;
    std::vector<DynSym> syms;
    std::vector<Elf64_Shdr> sections;

    // File bytes at a virtual address (inside a PROGBITS section).
    const unsigned char* at_vaddr(std::uint64_t addr, std::uint64_t len) const {
        for (const auto& s : sections) {
            if (s.sh_type == SHT_PROGBITS && addr >= s.sh_addr && addr + len <= s.sh_addr + s.sh_size)
                return reinterpret_cast<const unsigned char*>(bytes.data() + s.sh_offset + (addr - s.sh_addr));
        }
        return nullptr;
    }
};

Elf read_elf(const char* path) {
    Elf e;
    std::ifstream f(path, std::ios::binary);
    e.bytes.assign(std::istreambuf_iterator<char>(f), {});
    if (e.bytes.size() < sizeof(Elf64_Ehdr)) return e;
    Elf64_Ehdr eh;
    std::memcpy(&eh, e.bytes.data(), sizeof eh);
    e.sections.resize(eh.e_shnum);
    for (int i = 0; i < eh.e_shnum; ++i)
        std::memcpy(&e.sections[i], e.bytes.data() + eh.e_shoff + i * eh.e_shentsize, sizeof(Elf64_Shdr));
    for (const auto& s : e.sections) {
        if (s.sh_type != SHT_DYNSYM) continue;
        const auto& strtab = e.sections[s.sh_link];
        const char* names = e.bytes.data() + strtab.sh_offset;
        for (std::uint64_t off = 0; off + sizeof(Elf64_Sym) <= s.sh_size; off += sizeof(Elf64_Sym)) {
            Elf64_Sym sym;
            std::memcpy(&sym, e.bytes.data() + s.sh_offset + off, sizeof sym);
            DynSym d;
            d.name = names + sym.st_name;
            d.value = sym.st_value;
            d.size = sym.st_size;
            d.type = ELF64_ST_TYPE(sym.st_info);
            d.bind = ELF64_ST_BIND(sym.st_info);
            d.defined = sym.st_shndx != SHN_UNDEF;
            if (!d.name.empty()) e.syms.push_back(d);
        }
    }
    return e;
}

std::vector<std::string> listed_exports() {
    std::ifstream f(GEX_EXPORTS_FILE);
    std::vector<std::string> v;
    for (std::string line; std::getline(f, line);)
        if (!line.empty()) v.push_back(line);
    return v;
}

bool ends_with(const std::string& s, const std::string& suffix) {
    return s.size() >= suffix.size() && s.compare(s.size() - suffix.size(), suffix.size(), suffix) == 0;
}

class Exports : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        elf_ = new Elf(read_elf(GEX_LIBRARY_FILE));
        listed_ = new std::vector<std::string>(listed_exports());
    }
    static void TearDownTestSuite() {
        delete elf_;
        delete listed_;
    }
    static Elf* elf_;
    static std::vector<std::string>* listed_;

    // Defined global symbols of the library: functions (stubs) and slots.
    static void split(std::map<std::string, DynSym>& stubs, std::map<std::string, DynSym>& slots,
                      std::vector<std::string>& others) {
        for (const auto& s : elf_->syms) {
            if (!s.defined || s.bind == STB_LOCAL) continue;
            if (ends_with(s.name, "_arraddr")) slots[s.name.substr(0, s.name.size() - 8)] = s;
            else if (s.type == STT_FUNC) stubs[s.name] = s;
            else others.push_back(s.name);
        }
    }
};

Elf* Exports::elf_ = nullptr;
std::vector<std::string>* Exports::listed_ = nullptr;

TEST_F(Exports, OnlyListedNamesAreExported) {
    ASSERT_FALSE(elf_->syms.empty()) << "cannot read " << GEX_LIBRARY_FILE;
    ASSERT_GT(listed_->size(), 3000u);
    ASSERT_TRUE(std::is_sorted(listed_->begin(), listed_->end())) << "exports.txt is not in name order";
    std::set<std::string> listed(listed_->begin(), listed_->end());

    std::map<std::string, DynSym> stubs, slots;
    std::vector<std::string> others;
    split(stubs, slots, others);

    EXPECT_TRUE(others.empty()) << "unexpected exported object: " << (others.empty() ? "" : others.front());
    for (const auto& [name, sym] : stubs) EXPECT_TRUE(listed.count(name)) << "exported but not listed: " << name;
    for (const auto& [name, sym] : slots) EXPECT_TRUE(stubs.count(name)) << "slot without a stub: " << name;
    for (const auto& [name, sym] : stubs) EXPECT_TRUE(slots.count(name)) << "stub without a slot: " << name;

    std::size_t missing = 0;
    for (const auto& n : *listed_) missing += stubs.count(n) ? 0 : 1;
    std::printf("exports: %zu of %zu listed names present, %zu still missing\n", stubs.size(), listed_->size(),
                missing);
}

TEST_F(Exports, SlotsFormOneSortedContiguousTable) {
    std::map<std::string, DynSym> stubs, slots;
    std::vector<std::string> others;
    split(stubs, slots, others);
    ASSERT_FALSE(slots.empty());

    // Name order (std::map iterates sorted) must be address order, 8 bytes apart.
    std::uint64_t expect = slots.begin()->second.value;
    for (const auto& [name, sym] : slots) {
        EXPECT_EQ(sym.value, expect) << "slot of " << name << " out of place";
        EXPECT_EQ(sym.size, 8u) << name;
        expect = sym.value + 8;
    }
    EXPECT_EQ(expect - slots.begin()->second.value, 8 * stubs.size());
}

TEST_F(Exports, EachStubIsOneJumpThroughItsOwnSlot) {
    std::map<std::string, DynSym> stubs, slots;
    std::vector<std::string> others;
    split(stubs, slots, others);
    for (const auto& [name, stub] : stubs) {
        const unsigned char* code = elf_->at_vaddr(stub.value, 6);
        ASSERT_NE(code, nullptr) << name;
        // ff 25 disp32: jmp *disp32(%rip)
        ASSERT_EQ(code[0], 0xff) << name;
        ASSERT_EQ(code[1], 0x25) << name;
        std::int32_t disp;
        std::memcpy(&disp, code + 2, 4);
        EXPECT_EQ(stub.value + 6 + disp, slots[name].value) << name << " jumps elsewhere";
    }
}

// The load and unload hooks exist and return at once: no state is built at
// load and none is torn down at unload.
TEST_F(Exports, LoadAndUnloadHooksDoNothing) {
    std::uint64_t init = 0, fini = 0;
    for (const auto& sec : elf_->sections) {
        if (sec.sh_type != SHT_DYNAMIC) continue;
        for (std::uint64_t off = 0; off + sizeof(Elf64_Dyn) <= sec.sh_size; off += sizeof(Elf64_Dyn)) {
            Elf64_Dyn d;
            std::memcpy(&d, elf_->bytes.data() + sec.sh_offset + off, sizeof d);
            if (d.d_tag == DT_INIT) init = d.d_un.d_ptr;
            if (d.d_tag == DT_FINI) fini = d.d_un.d_ptr;
        }
    }
    ASSERT_NE(init, 0u);
    ASSERT_NE(fini, 0u);
    for (std::uint64_t hook : {init, fini}) {
        const unsigned char* code = elf_->at_vaddr(hook, 5);
        ASSERT_NE(code, nullptr);
        const bool endbr = code[0] == 0xf3 && code[1] == 0x0f && code[2] == 0x1e && code[3] == 0xfa;
        EXPECT_EQ(code[endbr ? 4 : 0], 0xc3) << "a hook does more than return";
    }
}

// Loaded for real: every slot holds an address inside the library's code that
// is not the stub itself, and a call through a stub works.
TEST_F(Exports, LoadedSlotsPointAtImplementations) {
    void* h = dlopen(GEX_LIBRARY_FILE, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(h, nullptr) << dlerror();
    Dl_info info;
    for (const auto& n : *listed_) {
        void* stub = dlsym(h, n.c_str());
        if (!stub) continue;
        void** slot = static_cast<void**>(dlsym(h, (n + "_arraddr").c_str()));
        ASSERT_NE(slot, nullptr) << n;
        ASSERT_NE(*slot, stub) << n;
        ASSERT_NE(dladdr(*slot, &info), 0) << n;
        void* base = info.dli_fbase;
        ASSERT_NE(dladdr(stub, &info), 0);
        EXPECT_EQ(base, info.dli_fbase) << n << "'s slot points outside the library";
    }
    using VersionFn = const GexLibraryVersion* (*)();
    auto version = reinterpret_cast<VersionFn>(dlsym(h, "gexiGetLibVersion"));
    ASSERT_NE(version, nullptr);
    EXPECT_STREQ(version()->version, "2017.0.3 (r55431)");
    dlclose(h);
}

}  // namespace
