// A block of bytes fenced by inaccessible pages: its last byte sits right
// before one (or, with `front`, its first byte right after one), so a kernel
// that reads or writes a byte past the block faults at once.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace gextest {

class Fenced {
public:
    explicit Fenced(std::size_t size, bool front = false) : size_(size) {
        const std::size_t page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        const std::size_t data = (size + page - 1) / page * page + page;
        map_bytes_ = data + 2 * page;
        map_ = static_cast<std::uint8_t*>(
            mmap(nullptr, map_bytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        if (map_ == MAP_FAILED) throw std::runtime_error("mmap");
        mprotect(map_, page, PROT_NONE);
        mprotect(map_ + page + data, page, PROT_NONE);
        p_ = front ? map_ + page : map_ + page + data - size;
    }
    Fenced(const Fenced&) = delete;
    Fenced& operator=(const Fenced&) = delete;
    ~Fenced() { munmap(map_, map_bytes_); }

    std::uint8_t* data() { return p_; }
    std::uint8_t* base() { return p_; }
    void* get() const { return p_; }
    std::size_t size() const { return size_; }
    template <class T>
    T* as() { return reinterpret_cast<T*>(p_); }

private:
    std::size_t size_ = 0, map_bytes_ = 0;
    std::uint8_t* map_ = nullptr;
    std::uint8_t* p_ = nullptr;
};

// Elements of T ending at the fence.
template <class T>
class FencedArray : public Fenced {
public:
    explicit FencedArray(std::size_t n, bool front = false) : Fenced(n * sizeof(T), front) {}
    T* data() { return as<T>(); }
};

}  // namespace gextest
