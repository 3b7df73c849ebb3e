#include "records/RulesRecord.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace jv {

namespace {

using Keys = std::map<std::string, std::string, std::less<>>;

// The keys that decide how a game is played, with OpenTafl's defaults.
Keys DefaultKeys() {
    return {{"esc", "c"},        {"surf", "y"},        {"atkf", "y"},     {"tfr", "d"},
            {"ka", "y"},         {"ks", "s"},          {"kj", "n"},       {"ber", "n"},
            {"spd", "-1"},       {"cor", "default"},   {"cors", "K"},     {"corh", "tcnkTCNK"},
            {"cen", "default"},  {"cenp", "tcnkTCNK"}, {"cens", "K"},     {"cenre", "tcnkTCNK"},
            {"cenh", "tcnk"},    {"cenhe", "tcnkTCNK"}, {"afor", ""},     {"dfor", ""},
            {"sw", "n"},         {"swf", "y"},         {"efe", "n"}};
}

// Keys read with the position (dim, start, starti), the variant's name, and
// keys that change nothing on a board of taflmen and a King: the jumps of
// knights and commanders, who may pass or re-enter a corner (no move passes
// one, and the King's move onto one ends the game), and what the fortresses
// allow (a board without fortresses has none).
bool PassedOver(std::string_view key) {
    static const std::string_view keys[] = {"dim",   "start", "starti", "name",   "nj",    "cj",    "corp",  "corre",
                                            "aforh", "aforp", "afors",  "aforre", "dforh", "dforp", "dfors", "dforre"};
    return std::find(std::begin(keys), std::end(keys), key) != std::end(keys);
}

// The keys of the text over the defaults, and the name: key's value.
bool ReadKeys(std::string_view text, Keys& keys, std::string& name, std::string& reason) {
    std::istringstream words{std::string(text)};
    for (std::string word; words >> word;) {
        const std::size_t colon = word.find(':');
        if (colon == std::string::npos) {
            reason = "the rules record holds " + word + ", which is no key:value entry";
            return false;
        }
        const std::string key = word.substr(0, colon);
        if (key == "name") name = word.substr(colon + 1);
        if (PassedOver(key)) continue;
        const auto known = keys.find(key);
        if (known == keys.end()) {
            reason = "the rules record's " + word + " is no OpenTafl rules key";
            return false;
        }
        known->second = word.substr(colon + 1);
    }
    return true;
}

// The refusal of a key's value as a rule JarlsVakt has no parameter for.
bool Cannot(const Keys& k, const std::string& key, const std::string& what, std::string& reason) {
    reason = "the rules record's " + key + ":" + k.at(key) + " asks for " + what + ", which JarlsVakt cannot play";
    return false;
}

// The pieces a piece-type list names, as bits: the attackers' taflmen, the
// defenders' and the King; the knights and commanders it may name stand on
// no board of this program.
enum PieceBits { Taflmen = 1, DefenderTaflmen = 2, TheKing = 4, AllPieces = 7 };

bool ReadPieces(const Keys& k, const std::string& key, int& bits, std::string& reason) {
    bits = 0;
    for (char c : k.at(key)) {
        if (std::string_view("tcnkTCNK").find(c) == std::string_view::npos) {
            reason = "the rules record's " + key + ":" + k.at(key) + " names '" + std::string(1, c) +
                     "', which is no piece letter (t, c, n, k, T, C, N, K)";
            return false;
        }
        bits |= c == 't' ? Taflmen : c == 'T' ? DefenderTaflmen : c == 'K' ? TheKing : 0;
    }
    return true;
}

bool ReadYesNo(const Keys& k, const std::string& key, bool& value, std::string& reason) {
    const std::string& text = k.at(key);
    if (text != "y" && text != "n") {
        reason = "the rules record's " + key + ":" + text + " is neither y nor n";
        return false;
    }
    value = text == "y";
    return true;
}

// Keys with the one value the rule board plays, and what any other asks for.
bool ReadFixedKeys(const Keys& k, std::string& reason) {
    static const struct { const char* key; const char* value; const char* other; } fixed[] = {
        {"kj", "n", "a King who jumps"},
        {"ber", "n", "berserk moves"},
        {"spd", "-1", "pieces that move a limited number of squares"},
        {"cen", "default", "a centre other than the middle square"},
        {"afor", "", "fortresses of the attackers"},
        {"dfor", "", "fortresses of the defenders"},
        {"swf", "y", "shieldwalls taken by a move that closes neither end"},
    };
    for (const auto& f : fixed)
        if (k.at(f.key) != f.value) return Cannot(k, f.key, f.other, reason);
    return true;
}

bool ReadKing(const Keys& k, Rules& r, std::string& reason) {
    const std::string& ka = k.at("ka");
    if (ka != "y" && ka != "n") return Cannot(k, "ka", "a King armed for one part of a capture only", reason);
    r.KingArmed = ka == "y";
    const std::string& ks = k.at("ks");
    if (ks == "s" || ks == "y") r.KingTaken = KingCapture::Four;
    else if (ks == "c") r.KingTaken = KingCapture::FourNearTheThroneElseTwo;
    else return Cannot(k, "ks", "a King weaker than strong (s) or strong on and beside the throne (c)", reason);
    return true;
}

bool ReadEscape(const Keys& k, Rules& r, std::string& reason) {
    const std::string& esc = k.at("esc");
    if (esc != "c" && esc != "e") return Cannot(k, "esc", "an escape onto neither the corners nor the edge", reason);
    r.KingEscape = esc == "c" ? Escape::Corners : Escape::Edges;
    // Under the edge escape the corners are squares like any other.
    const std::string corners = esc == "c" ? "default" : "";
    if (k.at("cor") != corners) {
        const char* what = esc == "c" ? "corners other than the board's four" : "corner squares beside the edge escape";
        return Cannot(k, "cor", what, reason);
    }
    if (esc == "e") {
        r.CornersHostile = false;
        return true;
    }
    int stop = 0, hostile = 0;
    if (!ReadPieces(k, "cors", stop, reason) || !ReadPieces(k, "corh", hostile, reason)) return false;
    if (stop != TheKing) return Cannot(k, "cors", "corners stopped on by others than the King alone", reason);
    if (hostile != 0 && hostile != AllPieces) return Cannot(k, "corh", "corners hostile to some pieces only", reason);
    r.CornersHostile = hostile == AllPieces;
    return true;
}

// The centre: passed by every piece while empty, stopped on by the King
// alone or by everyone, and hostile, empty, to everyone or no one. Occupied,
// it is hostile to the attackers exactly as when empty; a King who alone
// stops there and fights closes a capture himself, whatever the key says.
bool ReadCentre(const Keys& k, Rules& r, std::string& reason) {
    int pass = 0, stop = 0, back = 0, occupied = 0, empty = 0;
    if (!ReadPieces(k, "cenp", pass, reason) || !ReadPieces(k, "cens", stop, reason) ||
        !ReadPieces(k, "cenre", back, reason) || !ReadPieces(k, "cenh", occupied, reason) ||
        !ReadPieces(k, "cenhe", empty, reason))
        return false;
    if (pass != AllPieces) return Cannot(k, "cenp", "a centre that some pieces may not pass", reason);
    if (stop != TheKing && stop != AllPieces)
        return Cannot(k, "cens", "a centre on which neither the King alone nor every piece may stop", reason);
    if ((back & stop) != stop) return Cannot(k, "cenre", "a centre a piece may not come back to", reason);
    if (empty != 0 && empty != AllPieces)
        return Cannot(k, "cenhe", "an empty centre hostile to some pieces only", reason);
    r.CentreForKingOnly = stop == TheKing;
    r.ThroneHostile = empty == AllPieces;
    const bool kingCloses = r.KingArmed && r.CentreForKingOnly;
    if ((occupied & ~Taflmen) != 0 || (!kingCloses && (occupied == Taflmen) != r.ThroneHostile))
        return Cannot(k, "cenh", "an occupied centre hostile otherwise than the empty one", reason);
    return true;
}

bool ReadEnds(const Keys& k, Rules& r, std::string& reason) {
    const std::string& tfr = k.at("tfr");
    if (tfr != "d" && tfr != "i" && tfr != "w")
        return Cannot(k, "tfr", "a threefold repetition lost by the side that makes it", reason);
    // A draw by repetition changes no move of a record: d reads as i.
    r.RepetitionLosesForDefenders = tfr == "w";
    const std::string& sw = k.at("sw");
    if (sw != "n" && sw != "s" && sw != "w")
        return Cannot(k, "sw", "a shieldwall other than none (n), strong (s) or weak (w)", reason);
    if (sw == "w" && r.KingEscape == Escape::Corners && r.CornersHostile)
        return Cannot(k, "sw", "shieldwalls that a hostile corner does not close", reason);
    r.Shieldwall = sw != "n";
    return ReadYesNo(k, "surf", r.Encirclement, reason) && ReadYesNo(k, "efe", r.ExitFort, reason);
}

// The rules the keys say, as OpenTafl plays what they leave unsaid: the King
// taken, or brought home, with the pieces the move takes, every sandwich of
// the move looked at, and a side that cannot move losing.
bool DescribedRules(const Keys& k, Rules& r, std::string& reason) {
    r = Rules{};
    r.Name = "OpenTafl";
    r.KingCaptureIsWholeMove = false;
    r.KingHomeIsWholeMove = false;
    r.SandwichedKingEndsCaptures = false;
    r.NoMoveLoses = true;
    return ReadYesNo(k, "atkf", r.AttackersFirst, reason) && ReadFixedKeys(k, reason) && ReadKing(k, r, reason) &&
           ReadEscape(k, r, reason) && ReadCentre(k, r, reason) && ReadEnds(k, r, reason);
}

bool DescribedRules(std::string_view text, Rules& r, std::string& name, std::string& reason) {
    Keys keys = DefaultKeys();
    return ReadKeys(text, keys, name, reason) && DescribedRules(keys, r, reason);
}

// Two rule sets play alike when only their names, openings, keys and first
// sides differ.
bool PlayAlike(Rules a, const Rules& b) {
    a.Name = b.Name;
    a.Layout = b.Layout;
    a.OpenTafl = b.OpenTafl;
    a.AttackersFirst = b.AttackersFirst;
    return a == b;
}

// True when the rule set has a rule no key says (the classic King taken by
// three against the edge, his capture as the whole move, ...): such a set is
// named by the rules its own keys describe.
bool BeyondTheKeys(const Rules& r) {
    return r.KingTaken == KingCapture::FourOrThreeAgainstTheEdge || r.KingCaptureIsWholeMove ||
           r.KingHomeIsWholeMove || r.SandwichedKingEndsCaptures || !r.NoMoveLoses;
}

bool Names(const Rules& set, const Rules& read) {
    if (!BeyondTheKeys(set)) return PlayAlike(set, read);
    Rules own;
    std::string name, reason;
    return DescribedRules(set.OpenTafl, own, name, reason) && PlayAlike(own, read);
}

// The rule set the record's rules are, preferring the one its name: key
// names (OpenTafl writes a name's blanks as '_'); the read rules when none.
Rules NamedSet(const Rules& read, std::string name) {
    std::replace(name.begin(), name.end(), '_', ' ');
    const Rules* named = FindRules(name);
    if (named && Names(*named, read)) return *named;
    for (const Rules& set : RuleSets())
        if (Names(set, read)) return set;
    return read;
}

// The keys that read back to rules made from a record.
std::string DescribingKeys(const Rules& r) {
    const auto yesNo = [](bool yes) { return yes ? "y" : "n"; };
    const bool edges = r.KingEscape == Escape::Edges;
    std::string keys = std::string("esc:") + (edges ? "e" : "c") + " surf:" + yesNo(r.Encirclement) +
                       " atkf:" + yesNo(r.AttackersFirst) + " tfr:" + (r.RepetitionLosesForDefenders ? "w" : "i") +
                       " ka:" + yesNo(r.KingArmed) +
                       " ks:" + (r.KingTaken == KingCapture::FourNearTheThroneElseTwo ? "c" : "y");
    if (!r.CentreForKingOnly) keys += " cens:tcnkTCNK";
    keys += r.ThroneHostile ? " cenh:tcnk cenhe:tcnkTCNK" : " cenh: cenhe:";
    if (edges) keys += " cor:";
    else if (!r.CornersHostile) keys += " corh:";
    if (r.Shieldwall) keys += " sw:s";
    if (r.ExitFort) keys += " efe:y";
    return keys;
}

// The keys with atkf's value replaced: every rule set's keys name it.
std::string WithFirstSide(const std::string& keys, bool attackersFirst) {
    std::istringstream words(keys);
    std::string out;
    for (std::string word; words >> word;) {
        if (word.rfind("atkf:", 0) == 0) word = attackersFirst ? "atkf:y" : "atkf:n";
        out += (out.empty() ? "" : " ") + word;
    }
    return out;
}

}  // namespace

bool ReadRulesRecord(std::string_view keys, Rules& rules, bool& attackersFirst, std::string& reason) {
    Rules read;
    std::string name;
    if (!DescribedRules(keys, read, name, reason)) return false;
    attackersFirst = read.AttackersFirst;
    rules = NamedSet(read, name);
    return true;
}

std::string RulesRecordKeys(const Rules& rules, bool attackersFirst) {
    return WithFirstSide(rules.OpenTafl.empty() ? DescribingKeys(rules) : std::string(rules.OpenTafl), attackersFirst);
}

}  // namespace jv
