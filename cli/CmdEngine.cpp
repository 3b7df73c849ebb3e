#include <iostream>
#include <string>

#include "cli/Commands.h"
#include "session/EngineProtocol.h"

namespace jv::cli {

// The strong player as an OpenTafl engine on standard input and output:
// "hello" first, then an answer to each of the host's lines until goodbye
// or the end of the input. Nothing but protocol lines reaches the output.
int RunEngine(const Args& args) {
    if (!HasArguments(args, 0, "engine")) return 1;
    EngineProtocol engine([](const std::string& line) { std::cout << line << std::endl; });
    std::cout << "hello" << std::endl;
    for (std::string line; std::getline(std::cin, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (!engine.Handle(line)) break;
    }
    return 0;
}

}  // namespace jv::cli
