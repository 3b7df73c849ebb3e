#include "support/RunCli.h"

#include <cstdio>
#include <fstream>
#include <sstream>
#include <sys/wait.h>

namespace jv::test {

CliResult RunCli(const std::string& args, const std::string& home, const std::string& input) {
    const std::string inFile = home + "/.cli-input";
    const std::string errFile = home + "/.cli-error";
    std::ofstream(inFile, std::ios::binary) << input;
    const std::string command = "JARLSVAKT_HOME='" + home + "' '" JARLSVAKT_BIN_DIR "/jarlsvakt-cli' " + args +
                                " <'" + inFile + "' 2>'" + errFile + "'";
    CliResult result;
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) return result;
    std::string text;
    char buffer[4096];
    while (std::size_t n = fread(buffer, 1, sizeof buffer, pipe)) text.append(buffer, n);
    const int status = pclose(pipe);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) result.out.push_back(line);
    std::ifstream err(errFile, std::ios::binary);
    std::ostringstream errText;
    errText << err.rdbuf();
    result.err = errText.str();
    return result;
}

}  // namespace jv::test
