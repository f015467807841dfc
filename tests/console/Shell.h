// Commands run as a person types them: by the shell, with the built programs on the path, or in this
// process.
#pragma once

#include <cstdio>
#include <ostream>
#include <sstream>
#include <string>

#include <sys/wait.h>

#include <CLI/CLI.hpp>

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

// What a command prints that is run in this process; what it throws goes on.
inline std::string PrintedBy(void (*add)(CLI::App&, std::ostream&), const std::string& line)
{
    std::ostringstream out;
    CLI::App program;
    add(program, out);
    program.parse(line);
    return out.str();
}
