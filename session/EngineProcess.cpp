#include "session/EngineProcess.h"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace jv {

namespace {

// A line longer than this is handed out as it stands: an engine that writes
// without end must not fill the host's memory.
constexpr std::size_t LongestLine = 64 * 1024;

using Clock = std::chrono::steady_clock;

// Starts the shell on the command line in a process group of its own, its
// input and output joined to the pipes' far ends.
pid_t StartShell(const std::string& commandLine, int input[2], int output[2]) {
    const pid_t pid = fork();
    if (pid != 0) return pid;
    setpgid(0, 0);
    dup2(input[0], STDIN_FILENO);
    dup2(output[1], STDOUT_FILENO);
    const int null = open("/dev/null", O_WRONLY);
    if (null >= 0) dup2(null, STDERR_FILENO);
    for (int fd : {input[0], input[1], output[0], output[1]}) close(fd);
    execl("/bin/sh", "sh", "-c", commandLine.c_str(), static_cast<char*>(nullptr));
    _exit(127);
}

}  // namespace

EngineProcess::EngineProcess(const std::string& commandLine) {
    // A write to an engine that has ended must fail, not end the host.
    std::signal(SIGPIPE, SIG_IGN);
    int input[2], output[2];
    if (pipe2(input, O_CLOEXEC) != 0) return;
    if (pipe2(output, O_CLOEXEC) != 0) {
        close(input[0]);
        close(input[1]);
        return;
    }
    if (pipe2(wake_, O_CLOEXEC) != 0) wake_[0] = wake_[1] = -1;
    pid_ = StartShell(commandLine, input, output);
    close(input[0]);
    close(output[1]);
    toEngine_ = input[1];
    fromEngine_ = output[0];
    if (pid_ < 0) Stop();
    else fcntl(fromEngine_, F_SETFL, fcntl(fromEngine_, F_GETFL) | O_NONBLOCK);
}

EngineProcess::~EngineProcess() { Stop(); }

bool EngineProcess::Send(const std::string& line) {
    if (toEngine_ < 0) return false;
    const std::string text = line + "\n";
    std::size_t written = 0;
    while (written < text.size()) {
        const ssize_t n = write(toEngine_, text.data() + written, text.size() - written);
        if (n <= 0) return false;
        written += static_cast<std::size_t>(n);
    }
    return true;
}

EngineLink::Read EngineProcess::Receive(std::string& line, int millis) {
    const auto deadline = Clock::now() + std::chrono::milliseconds(millis);
    for (;;) {
        const std::size_t end = pending_.find('\n');
        if (end != std::string::npos || pending_.size() >= LongestLine) {
            const std::size_t cut = end == std::string::npos ? pending_.size() : end;
            line = pending_.substr(0, cut);
            if (!line.empty() && line.back() == '\r') line.pop_back();
            pending_.erase(0, end == std::string::npos ? cut : cut + 1);
            return Read::Line;
        }
        if (fromEngine_ < 0) return Read::Closed;
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (left <= 0) return Read::TimedOut;
        pollfd wait[2] = {{fromEngine_, POLLIN, 0}, {wake_[0], POLLIN, 0}};
        if (poll(wait, wake_[0] >= 0 ? 2 : 1, static_cast<int>(left)) <= 0) continue;
        if (wait[1].revents != 0) return Read::Closed;
        char buffer[4096];
        const ssize_t n = read(fromEngine_, buffer, sizeof buffer);
        if (n > 0) pending_.append(buffer, static_cast<std::size_t>(n));
        else if (n == 0) return Read::Closed;
    }
}

void EngineProcess::Stop() {
    if (pid_ > 0) {
        kill(-pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
        pid_ = -1;
    }
    for (int* fd : {&toEngine_, &fromEngine_, &wake_[0], &wake_[1]})
        if (*fd >= 0) {
            close(*fd);
            *fd = -1;
        }
}

void EngineProcess::Interrupt() {
    // Only what is safe beside a Receive on another thread: the descriptors
    // stay open until Stop.
    if (pid_ > 0) kill(-pid_, SIGKILL);
    if (wake_[1] >= 0) (void)!write(wake_[1], "x", 1);
}

}  // namespace jv
