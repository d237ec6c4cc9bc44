#pragma once

// The attribute that makes the compiler build a function for several instruction sets and choose
// among them at run time. It stands on a twin without external linkage: clones that other files can
// see do not link with every compiler. Empty where the platform or a sanitizer rules it out.
#ifndef MGRAPHX_MULTIVERSION
#define MGRAPHX_MULTIVERSION
#endif

// A helper of such functions. It must go into each clone: what is called instead of inlined runs
// with the baseline's instructions.
#ifdef __GNUC__
#define MGRAPHX_INLINE inline __attribute__((always_inline))
#else
#define MGRAPHX_INLINE inline
#endif
