// Start-up of the whole program against a bare Qt window: each launched as its own process, in
// alternated pairs, until its first window is painted. Prints the medians of wall time, CPU time
// and peak memory of both, and the program's three ratios to the bare window.
// Run: build/contarello-startup [pairs]   (offscreen unless QT_QPA_PLATFORM says otherwise)

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
bool launch(const std::string& path, Run& run) {
    const auto start = std::chrono::steady_clock::now();
    const pid_t pid = fork();
    if (pid < 0) return false;
    if (pid == 0) {
        execl(path.c_str(), path.c_str(), static_cast<char*>(nullptr));
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
    const int pairs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 11;
    std::string dir = argv[0];
    dir = dir.substr(0, dir.find_last_of('/') + 1);
    setenv("CONTARELLO_EXIT_AFTER_FIRST_PAINT", "1", 1);
    setenv("QT_QPA_PLATFORM", getenv("QT_QPA_PLATFORM") ? getenv("QT_QPA_PLATFORM") : "offscreen", 1);
    std::vector<double> wall[2], cpu[2], rss[2];
    const std::string programs[2] = {dir + "contarello-bare-window", dir + "contarello"};
    Run warm;
    launch(programs[0], warm); // the first launch fills the disk cache for both
    launch(programs[1], warm);
    for (int i = 0; i < pairs; ++i)
        for (int k = 0; k < 2; ++k) {
            const int which = i % 2 ? 1 - k : k; // alternate who goes first
            Run r;
            if (!launch(programs[which], r)) {
                std::fprintf(stderr, "%s did not finish\n", programs[which].c_str());
                return 1;
            }
            wall[which].push_back(r.wall), cpu[which].push_back(r.cpu), rss[which].push_back(r.rss);
        }
    const char* names[2] = {"bare Qt window", "Contarello"};
    std::printf("%d alternated pairs, medians\n", pairs);
    for (int k = 0; k < 2; ++k)
        std::printf("  %-15s wall %7.1f ms  cpu %7.1f ms  peak memory %6.1f MiB\n", names[k], median(wall[k]),
                    median(cpu[k]), median(rss[k]));
    std::printf("ratios: wall %.2fx  cpu %.2fx  memory %.2fx\n", median(wall[1]) / median(wall[0]),
                median(cpu[1]) / median(cpu[0]), median(rss[1]) / median(rss[0]));
    return 0;
}
