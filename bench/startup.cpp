// Start-up of the whole program against a bare Qt window: each launched as its own process, in
// alternated rounds, until its first window is painted. Prints the medians of wall time, CPU time
// and peak memory, and the program's three ratios to the bare window. A third process, the start
// screen's captions in plain Qt widgets, shows what of the difference is the cost of the text.
// Run: build/contarello-startup [rounds]   (offscreen unless QT_QPA_PLATFORM says otherwise)

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

struct Run {
    double wall = 0, cpu = 0; // milliseconds
    double rss = 0;           // peak resident memory, MiB
};

// Launches the program, waits for it, and takes what the kernel counted of the finished child.
bool launch(const std::string& path, const char* option, Run& run) {
    const auto start = std::chrono::steady_clock::now();
    const pid_t pid = fork();
    if (pid < 0) return false;
    if (pid == 0) {
        execl(path.c_str(), path.c_str(), option, static_cast<char*>(nullptr));
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (wait4(pid, &status, 0, &usage) != pid) return false;
    run.wall = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    run.cpu = (usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1e3 +
              (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e3;
    run.rss = usage.ru_maxrss / 1024.0;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

double median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v.empty() ? 0 : (v.size() % 2 ? v[v.size() / 2] : (v[v.size() / 2 - 1] + v[v.size() / 2]) / 2);
}

} // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 11;
    std::string dir = argv[0];
    dir = dir.substr(0, dir.find_last_of('/') + 1);
    setenv("CONTARELLO_EXIT_AFTER_FIRST_PAINT", "paint", 1);
    setenv("QT_QPA_PLATFORM", getenv("QT_QPA_PLATFORM") ? getenv("QT_QPA_PLATFORM") : "offscreen", 1);
    constexpr int kPrograms = 3;
    std::vector<double> wall[kPrograms], cpu[kPrograms], rss[kPrograms];
    const std::string paths[kPrograms] = {dir + "contarello-bare-window", dir + "contarello-bare-window",
                                          dir + "contarello"};
    const char* options[kPrograms] = {nullptr, "--captions", nullptr};
    const char* names[kPrograms] = {"bare Qt window", "same captions", "Contarello"};
    Run warm;
    for (int k = 0; k < kPrograms; ++k)
        launch(paths[k], options[k], warm); // the first launches fill the disk cache
    for (int i = 0; i < rounds; ++i)
        for (int j = 0; j < kPrograms; ++j) {
            const int which = (i + j) % kPrograms; // each goes first in turn
            Run r;
            if (!launch(paths[which], options[which], r)) {
                std::fprintf(stderr, "%s did not finish\n", names[which]);
                return 1;
            }
            wall[which].push_back(r.wall), cpu[which].push_back(r.cpu), rss[which].push_back(r.rss);
        }
    std::printf("%d alternated rounds, medians\n", rounds);
    for (int k = 0; k < kPrograms; ++k)
        std::printf("  %-15s wall %7.1f ms  cpu %7.1f ms  peak memory %6.1f MiB\n", names[k], median(wall[k]),
                    median(cpu[k]), median(rss[k]));
    const auto ratios = [&](const char* what, int a, int b) {
        std::printf("%s: wall %.2fx  cpu %.2fx  memory %.2fx\n", what, median(wall[a]) / median(wall[b]),
                    median(cpu[a]) / median(cpu[b]), median(rss[a]) / median(rss[b]));
    };
    ratios("ratios", 2, 0);
    ratios("the captions alone", 1, 0);
    ratios("Contarello to the captions", 2, 1);
    return 0;
}
