#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>

#include "support/FaultyFiles.h"

namespace tavrene::test {

/// Runs `work` in a process of its own, which dies before the file operation of that number (reading changes
/// nothing). False when there is no such operation.
inline bool DiesBefore(FaultyFiles& files, int operation, const std::function<void()>& work) {
    constexpr int kDead = 9;
    const ::pid_t child = ::fork();
    if (child == 0) {
        files.refuse = [&operation](const std::string& kind, const std::string&) {
            if (kind != "read" && kind != "list" && operation-- == 0)
                ::_exit(kDead);
            return false;
        };
        work();
        ::_exit(0);
    }
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    return WEXITSTATUS(status) == kDead;
}

}  // namespace tavrene::test
