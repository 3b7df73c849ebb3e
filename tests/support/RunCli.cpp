#include "support/RunCli.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sys/wait.h>

#include "records/TextFile.h"

namespace jv::test {

CliResult RunCli(const std::string& args, const std::string& home, const std::string& input) {
    const std::string in = home + "/.cli-input", out = home + "/.cli-output", err = home + "/.cli-error";
    std::ofstream(in, std::ios::binary) << input;
    const std::string command = "JARLSVAKT_HOME='" + home + "' '" JARLSVAKT_BIN_DIR "/jarlsvakt-cli' " + args + " <'" + in +
                                "' >'" + out + "' 2>'" + err + "'";
    const int status = std::system(command.c_str());
    CliResult result;
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    ReadLines(out, result.out);
    std::ifstream errText(err, std::ios::binary);
    result.err.assign(std::istreambuf_iterator<char>(errText), {});
    return result;
}

}  // namespace jv::test
