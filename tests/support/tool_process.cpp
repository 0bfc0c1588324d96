#include "support/tool_process.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kovrel_test {

ToolProcess::~ToolProcess() {
    if (pid_ > 0) {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
    if (out_ >= 0) close(out_);
    if (err_ >= 0) close(err_);
}

bool ToolProcess::start(const std::vector<std::string> &args) {
#ifdef KOVREL_TOOL_BINARY
    int out[2], err[2];
    if (pipe2(out, O_CLOEXEC) != 0) return false;
    if (pipe2(err, O_CLOEXEC) != 0) {
        close(out[0]);
        close(out[1]);
        return false;
    }
    pid_ = fork();
    if (pid_ < 0) return false;
    if (pid_ == 0) {
        const int null = open("/dev/null", O_RDONLY);
        dup2(null, 0);
        dup2(out[1], 1);
        dup2(err[1], 2);
        std::vector<char *> argv;
        argv.push_back(const_cast<char *>(KOVREL_TOOL_BINARY));
        for (const auto &a : args) argv.push_back(const_cast<char *>(a.c_str()));
        argv.push_back(nullptr);
        execv(KOVREL_TOOL_BINARY, argv.data());
        _exit(127);
    }
    close(out[1]);
    close(err[1]);
    out_ = out[0];
    err_ = err[0];
    return true;
#else
    (void)args;
    return false;
#endif
}

bool ToolProcess::pump(int timeout_ms) {
    if (out_ < 0 && err_ < 0) return false;
    pollfd fds[2] = {{out_, POLLIN, 0}, {err_, POLLIN, 0}};
    if (poll(fds, 2, timeout_ms) < 0 && errno != EINTR) return false;
    char buf[65536];
    for (int i = 0; i < 2; ++i) {
        if (!(fds[i].revents & (POLLIN | POLLHUP | POLLERR))) continue;
        const ssize_t n = read(fds[i].fd, buf, sizeof buf);
        if (n > 0) {
            (i == 0 ? run_.out : run_.err).append(buf, static_cast<size_t>(n));
        } else {
            close(fds[i].fd);
            (i == 0 ? out_ : err_) = -1;
        }
    }
    return out_ >= 0 || err_ >= 0;
}

bool ToolProcess::wait_for_err(const std::string &text, int timeout_ms) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeout_ms);
    while (run_.err.find(text) == std::string::npos) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now()).count();
        if (left <= 0 || !pump(static_cast<int>(left))) return run_.err.find(text) != std::string::npos;
    }
    return true;
}

void ToolProcess::signal(int sig) {
    if (pid_ > 0) kill(pid_, sig);
}

ToolRun ToolProcess::finish(int timeout_seconds) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(timeout_seconds);
    bool killed = false;
    for (;;) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now()).count();
        if (left <= 0) {
            kill(pid_, SIGKILL);
            killed = true;
            break;
        }
        if (!pump(static_cast<int>(left))) break;
    }
    int status = 0;
    if (pid_ > 0) waitpid(pid_, &status, 0);
    pid_ = -1;
    if (killed)
        run_.status = 128 + SIGKILL;
    else if (WIFEXITED(status))
        run_.status = WEXITSTATUS(status);
    else if (WIFSIGNALED(status))
        run_.status = 128 + WTERMSIG(status);
    return run_;
}

}  // namespace kovrel_test
