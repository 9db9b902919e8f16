#pragma once

/// Drawing and text libraries compute with vector registers twice as wide as ours and leave their
/// upper halves in use: until those are released, the processor carries them through each of our
/// instructions, and a match takes four times as long. Changes no value.
inline void liberer_registres() {
#if defined(__x86_64__) && !defined(__AVX__)
    static const bool larges = __builtin_cpu_supports("avx") != 0;
    if (larges)
        asm volatile("vzeroupper");
#endif
}
