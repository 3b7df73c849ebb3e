#include <iostream>

#include "cli/CliView.h"
#include "cli/Commands.h"
#include "records/LayoutFile.h"
#include "records/Otn.h"
#include "records/OtnFile.h"

namespace jv::cli {

// The OpenTafl position of a layout, as an .otn file holds it under the rule
// set named (OtnFileLine); one the OTN reader would refuse (a board that is
// not square, no King) is refused.
int RunOtn(const Args& args) {
    std::string file;
    CommandGame game;
    const Game& g = game.g;
    if (!ReadFileAndRules(args, file, game.g.GameRules)) {
        std::cerr << "usage: jarlsvakt-cli otn FILE|- [--rules NAME]\n";
        return 1;
    }
    if (!ReadLayoutArgument(game.g, file)) return 2;
    if (g.BoardWidth != g.BoardHeight) {
        std::cerr << "An OpenTafl board is square: this layout is " << g.BoardWidth << "x" << g.BoardHeight << '\n';
        return 2;
    }
    if (const std::string refusal = OtnRefusal(g); !refusal.empty()) {
        std::cerr << "No OpenTafl position can be written of this layout: " << refusal << '\n';
        return 2;
    }
    std::cout << OtnFileLine(g) << '\n';
    return 0;
}

// A layout file made from an OpenTafl position; the layout line is printed
// too. OUT is taken as given, from the current folder.
int RunFromOtn(const Args& args) {
    if (!HasArguments(args, 2, "from-otn POSITION OUT")) return 1;
    std::string line, reason;
    if (!OtnToLayoutLine(args[0], line, reason)) {
        std::cerr << "Not an OpenTafl position JarlsVakt can play: " << reason << '\n';
        return 2;
    }
    CommandGame game;
    Game& g = game.g;
    const WriteResult written = ApplyLayoutLine(g, line).Ok() ? WriteLayoutFile(g, args[1]) : WriteResult{};
    if (!written.Ok()) {
        std::cerr << "Layout File:\n" << args[1] << '\n' << written.Problem("could not be written") << '\n';
        return 2;
    }
    std::cout << line << '\n';
    return 0;
}

}  // namespace jv::cli
