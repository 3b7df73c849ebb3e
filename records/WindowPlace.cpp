#include "records/WindowPlace.h"

#include <sstream>

#include "records/TextFile.h"

namespace jv {

namespace {

// Far beyond any desktop: a larger number is no place a window was.
constexpr int Reach = 100000;

bool Within(int value, int low) { return value >= low && value <= Reach; }

}  // namespace

std::optional<WindowPlace> ReadWindowPlaceText(std::string_view text) {
    std::istringstream line(FirstLine(text));
    WindowPlace place;
    int maximised = -1;
    std::string rest;
    if (!(line >> place.X >> place.Y >> place.Width >> place.Height >> maximised) || line >> rest) return std::nullopt;
    if (!Within(place.X, -Reach) || !Within(place.Y, -Reach) || !Within(place.Width, 100) ||
        !Within(place.Height, 100) || (maximised != 0 && maximised != 1))
        return std::nullopt;
    place.Maximised = maximised == 1;
    return place;
}

std::string WindowPlaceText(const WindowPlace& place) {
    return std::to_string(place.X) + " " + std::to_string(place.Y) + " " + std::to_string(place.Width) + " " +
           std::to_string(place.Height) + " " + (place.Maximised ? "1" : "0") + "\r\n";
}

}  // namespace jv
