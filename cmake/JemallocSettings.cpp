// SPDX-License-Identifier: Apache-2.0

#include <jemalloc/jemalloc.h>

/// One arena for all threads, since jemalloc reads the null pointer of one that there is no memory
/// to make. Few threads work at once, and each has a cache of its own in front of the arena, large
/// enough that one may take the objects that another frees without meeting it at each. Memory that
/// is free goes back to the system when that asks for it: to take it anew for each picture takes as
/// long as to filter the picture.
const char *malloc_conf =
    "narenas:1,tcache_nslots_small_max:2000,lg_tcache_nslots_mul:4,muzzy_decay_ms:-1";
