#pragma once
#include <string>
#include <vector>

namespace jv::test {

struct CliResult {
    int exitCode = -1;
    std::vector<std::string> out;   // standard output, line by line
    std::string err;                // standard error, whole
};

// Runs the built jarlsvakt-cli with the given arguments (a shell-quoted text),
// its program folder set to home, feeding input on standard input.
CliResult RunCli(const std::string& args, const std::string& home, const std::string& input = "");

}  // namespace jv::test
