// Runs a program again and again and tells its time and memory: kelvo-picco TIMES PROGRAM ARGUMENTS...
// Prints the median and the 95th percentile of the whole process, in ms, and the peak of the resident set, in KiB.
// A process of its own, small and without buffers: the peak of a child never shows less than that of its parent.

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>

extern char** environ;

namespace {

constexpr int massimoVolte = 1000;

double millisecondi() {
    timespec ora{};
    clock_gettime(CLOCK_MONOTONIC, &ora);
    return static_cast<double>(ora.tv_sec) * 1e3 + static_cast<double>(ora.tv_nsec) * 1e-6;
}

/// Answers the time, or a negative number for a run that failed.
double corri(char** comando, long& piccoKiB) {
    posix_spawn_file_actions_t azioni{};
    posix_spawn_file_actions_init(&azioni);
    posix_spawn_file_actions_addopen(&azioni, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const double inizio = millisecondi();
    pid_t processo = 0;
    const int errore = posix_spawn(&processo, comando[0], &azioni, nullptr, comando, environ);
    posix_spawn_file_actions_destroy(&azioni);
    int stato = 0;
    rusage risorse{};
    if (errore != 0 || wait4(processo, &stato, 0, &risorse) < 0 || !WIFEXITED(stato) || WEXITSTATUS(stato) != 0) {
        return -1.0;
    }
    piccoKiB = std::max(piccoKiB, risorse.ru_maxrss);
    return millisecondi() - inizio;
}

}  // namespace

int main(int argc, char** argv) {
    const int volte = argc > 2 ? std::atoi(argv[1]) : 0;
    if (volte < 1 || volte > massimoVolte) {
        std::fputs("kelvo-picco TIMES PROGRAM ARGUMENTS...\n", stderr);
        return 2;
    }
    static std::array<double, massimoVolte> tempi;
    long piccoKiB = 0;
    corri(argv + 2, piccoKiB);  // warms the files
    for (int i = 0; i < volte; ++i) {
        tempi[static_cast<std::size_t>(i)] = corri(argv + 2, piccoKiB);
    }
    std::sort(tempi.begin(), tempi.begin() + volte);
    if (tempi[0] < 0.0) {
        std::fputs("kelvo-picco: a run failed\n", stderr);
        return 1;
    }
    const auto mediana = static_cast<std::size_t>(volte / 2);
    const auto alto = static_cast<std::size_t>((volte * 95 + 99) / 100 - 1);
    std::printf("%.2f %.2f %ld\n", tempi[mediana], tempi[alto], piccoKiB);
    return 0;
}
