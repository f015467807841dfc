// Shell commands run as a person types them, with the built programs on the path.
#pragma once

#include <cstdio>
#include <string>

#include <sys/wait.h>

struct Answer {
    int status = -1;
    std::string out;  // both streams
};

// The command stands in braces on a line of its own, so that its redirections stay its own.
inline Answer RunShell(const std::string& command)
{
    Answer answer;
    const std::string line = "export PATH='" PROGRAM_FOLDERS "':\"$PATH\"; { " + command + "\n} 2>&1";
    FILE* const pipe = popen(line.c_str(), "r");
    if (pipe == nullptr) {
        return answer;
    }
    for (int ch = std::fgetc(pipe); ch != EOF; ch = std::fgetc(pipe)) {
        answer.out += static_cast<char>(ch);
    }
    const int status = pclose(pipe);
    answer.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return answer;
}
