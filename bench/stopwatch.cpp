// SPDX-License-Identifier: Apache-2.0
// Runs a command and writes what it took into a file: wall seconds, processor seconds and peak
// memory in KB, that of the largest process. GNU time counts in hundredths of a second, which is
// more than some of what is measured takes.
//   stopwatch FILE COMMAND...
#include <stdio.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

static double now() {
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

static double seconds(const timeval &time) {
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

int main(int argc, char **argv) {
    if (argc < 3)
        return 2;
    const double start = now();
    const pid_t child = fork();
    if (child == 0) {
        execvp(argv[2], argv + 2);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child)
        return 2;
    const double end = now();
    FILE *result = fopen(argv[1], "w");
    if (result == nullptr)
        return 2;
    fprintf(result, "%.6f %.6f %ld\n", end - start,
            seconds(usage.ru_utime) + seconds(usage.ru_stime), usage.ru_maxrss);
    fclose(result);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
