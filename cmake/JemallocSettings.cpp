// SPDX-License-Identifier: Apache-2.0

#include <jemalloc/jemalloc.h>

/// One arena for all threads, since jemalloc reads the null pointer of one that there is no memory
/// to make. Few threads work at once, and each has a cache of its own in front of the arena. Memory
/// that is free goes back to the system when that asks for it: to take it anew for each picture
/// takes as long as to filter the picture.
const char *malloc_conf = "narenas:1,muzzy_decay_ms:-1";
