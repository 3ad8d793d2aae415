// Measures the start of a whole process: from the moment before it is made to its first painted frame, and
// the most memory it had in use until then. Off-screen the time that it was ready to run and had no processor
// is taken off: that is what other programs on the machine did to it. With a display it also waits for its
// own work there, so that nothing can be taken off.
//
//   launch COUNT PROGRAM [ARGUMENT ...]     prints COUNT lines: milliseconds, kilobytes

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <string>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

// What the kernel notes for the program alone; the usage counters of the parent would count our own pages.
long peak_kilobytes(pid_t child) {
    char line[256];
    std::snprintf(line, sizeof line, "/proc/%d/status", static_cast<int>(child));
    std::FILE* status = std::fopen(line, "r");
    long peak = 0;
    while (status && std::fgets(line, sizeof line, status))
        if (std::sscanf(line, "VmHWM: %ld", &peak) == 1) break;
    if (status) std::fclose(status);
    return peak;
}

// The second number of a process' schedstat, in milliseconds; 0 where it cannot be told.
double held_up(pid_t child) {
    long long ran = 0, waited = 0;
    if (std::FILE* file = std::fopen(("/proc/" + std::to_string(child) + "/schedstat").c_str(), "r")) {
        if (std::fscanf(file, "%lld %lld", &ran, &waited) != 2) waited = 0;
        std::fclose(file);
    }
    return static_cast<double>(waited) / 1e6;
}

bool measure(char** command) {
    int to_child[2], from_child[2];
    if (pipe(to_child) || pipe(from_child)) return false;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, to_child[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, from_child[1], STDOUT_FILENO);
    for (int end : {to_child[0], to_child[1], from_child[0], from_child[1]})
        posix_spawn_file_actions_addclose(&actions, end);

    const auto start = std::chrono::steady_clock::now();
    pid_t child;
    const int failed = posix_spawnp(&child, command[0], &actions, nullptr, command, environ);
    posix_spawn_file_actions_destroy(&actions);
    close(to_child[0]);
    close(from_child[1]);
    char mark = 0;
    const bool painted = !failed && read(from_child[0], &mark, 1) == 1 && mark == '!';
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    if (painted) {
        const double others = std::getenv("DISPLAY") ? 0 : held_up(child);
        std::printf("%.3f %ld\n", time.count() - others, peak_kilobytes(child));
    }
    close(to_child[1]);
    close(from_child[0]);
    if (!failed) waitpid(child, nullptr, 0);
    return painted;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("launch COUNT PROGRAM [ARGUMENT ...]\n", stderr);
        return 2;
    }
    for (int left = std::atoi(argv[1]); left > 0; left--)
        if (!measure(argv + 2)) {
            std::fprintf(stderr, "launch: no frame from %s\n", argv[2]);
            return 1;
        }
}
