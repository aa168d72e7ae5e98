#include <sys/resource.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <cstdio>

// Runs PROGRAM ARGUMENTS... and prints what the whole process took:
//
//   wall-nanoseconds cpu-microseconds peak-memory-KiB page-faults
//
// A program of its own, because a process starts with its parent's peak memory: this parent is far
// smaller than anything measured.

namespace {

long long Nanoseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

long long Microseconds(const timeval& time) { return time.tv_sec * 1'000'000LL + time.tv_usec; }

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "Arguments: PROGRAM ARGUMENTS...\n");
    return 2;
  }
  const long long start = Nanoseconds();
  const pid_t child = fork();
  if (child < 0) {
    std::perror("measure: fork");
    return 1;
  }
  if (child == 0) {
    execv(argv[1], argv + 1);
    std::perror(argv[1]);
    _exit(127);
  }
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) != child) {
    std::perror("measure: wait4");
    return 1;
  }
  const long long wall = Nanoseconds() - start;
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    std::fprintf(stderr, "measure: %s did not succeed\n", argv[1]);
    return 1;
  }
  const long long cpu = Microseconds(usage.ru_utime) + Microseconds(usage.ru_stime);
  std::printf("%lld %lld %ld %ld\n", wall, cpu, usage.ru_maxrss, usage.ru_minflt);
  return 0;
}
