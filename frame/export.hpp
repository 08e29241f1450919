// The export machinery.
//
// Every export is: stub -> slot -> implementation. GEX_EXPORT(ret, name,
// params) stands where the implementation is written and emits three things:
//
//   * the implementation gex::name, hidden, with the export's signature;
//     a static_assert ties that signature to the public declaration;
//   * the slot cell name_arraddr, a writable pointer initialised at link time
//     with the implementation's address, in its own section .gexslot.name;
//     the linker fragment gathers these sections sorted by name, so the slots
//     form one contiguous table in export-name order;
//   * the stub `name`, a single indirect jump through the slot, in section
//     .gexstub.name (also gathered in name order). The stub reaches the slot
//     through a hidden alias, so no GOT load is needed and no argument is
//     touched.
//
// Wrappers call one another as gex::name directly, never through the slots.
#pragma once

#include <type_traits>

#include "gexip.h"

#define GEX_STR_(x) #x
#define GEX_STR(x) GEX_STR_(x)

#define GEX_EXPORT_STUB_ASM(name)                                                   \
    asm(".pushsection .gexstub." #name ",\"ax\",@progbits\n"                        \
        ".p2align 4\n"                                                              \
        ".globl " #name "\n"                                                        \
        ".type " #name ",@function\n" #name ":\n"                                   \
        "  jmp *gexslot_local_" #name "(%rip)\n"                                    \
        ".size " #name ", .-" #name "\n"                                            \
        ".popsection\n");

#define GEX_EXPORT(ret, name, params)                                               \
    namespace gex {                                                                 \
    __attribute__((visibility("hidden"))) ret name params;                          \
    }                                                                               \
    static_assert(std::is_same_v<decltype(::name), decltype(gex::name)>,            \
                  "the implementation of " #name " differs from its declaration");  \
    extern "C" {                                                                    \
    __attribute__((visibility("default"), used, section(".gexslot." #name)))        \
    decltype(&gex::name) name##_arraddr = &gex::name;                               \
    extern decltype(&gex::name) gexslot_local_##name                                \
        __attribute__((alias(#name "_arraddr"), visibility("hidden")));             \
    }                                                                               \
    GEX_EXPORT_STUB_ASM(name)                                                       \
    ret gex::name params

// Declares the implementation gex::name of another export, so that a wrapper
// can call it directly (never through the slot). GEX_USE is written at global
// scope, GEX_DECLARE_IMPL inside namespace gex.
#define GEX_DECLARE_IMPL(name) __attribute__((visibility("hidden"))) decltype(::name) name;
#define GEX_USE(name) \
    namespace gex {   \
    GEX_DECLARE_IMPL(name) \
    }
