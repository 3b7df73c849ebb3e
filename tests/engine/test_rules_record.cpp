// OpenTafl rules records: the keys read into a rule set of the program or rules made from them, written back, or refused.
#include <gtest/gtest.h>

#include "core/Rules.h"
#include "records/RulesRecord.h"

using namespace jv;

namespace {

// The rules the keys read to, with the side they name first; the reason when refused.
struct Read {
    bool Ok = false;
    Rules GameRules;
    bool AttackersFirst = false;
    std::string Reason;
};

Read ReadKeys(const std::string& keys) {
    Read r;
    r.Ok = ReadRulesRecord(keys, r.GameRules, r.AttackersFirst, r.Reason);
    return r;
}

}  // namespace

TEST(RulesRecord, EachRuleSetsKeysReadBackToItAndAreWrittenBackUnchanged) {
    // A rule set's own keys say its rules: they read back to the set itself, whichever side they name first.
    for (const Rules& set : RuleSets()) {
        for (bool attackersFirst : {set.AttackersFirst, !set.AttackersFirst}) {
            const std::string keys = RulesRecordKeys(set, attackersFirst);
            const Read read = ReadKeys(keys);
            ASSERT_TRUE(read.Ok) << set.Name << ": " << read.Reason;
            EXPECT_EQ(read.GameRules, set) << keys << " reads as " << read.GameRules.Name;
            EXPECT_EQ(read.AttackersFirst, attackersFirst) << keys;
            if (attackersFirst == set.AttackersFirst) EXPECT_EQ(keys, set.OpenTafl);
        }
    }
}

TEST(RulesRecord, KeysNameTheRuleSetThatPlaysAlikeOrMakeRulesThatWriteBackToThemselves) {
    // Keys left out take OpenTafl's defaults; the set that plays alike is named (the one name: names among twins),
    // else rules are made from the keys, and written back they read the same.
    const struct { const char* keys; const char* name; const char* written; } rows[] = {
        {"dim:11 name:Copenhagen atkf:y tfr:w sw:s efe:y", "Copenhagen", nullptr},   // as OpenTafl writes it
        {"tfr:d ks:c", "Brandubh", nullptr},
        {"name:Fetlar tfr:i ks:c", "Brandubh", nullptr},
        {"esc:e cor: ks:c cenh:", "Tablut", nullptr},
        {"name:tawlbwrdd esc:e cor: ks:c", "Tawlbwrdd", nullptr},
        {"esc:c surf:n atkf:y tfr:i ka:y ks:y cenh: cenhe: start:/3/1K1/3/", "Classic", nullptr},
        {"", "OpenTafl", "esc:c surf:y atkf:y tfr:i ka:y ks:y cenh:tcnk cenhe:tcnkTCNK"},
        {"esc:e cor: ka:n cens:tcnkTCNK cenh: cenhe: tfr:w",
         "OpenTafl", "esc:e surf:y atkf:y tfr:w ka:n ks:y cens:tcnkTCNK cenh: cenhe: cor:"},
        {"atkf:n ks:c corh: sw:w cenh: nj:c corp:tK", "OpenTafl",
         "esc:c surf:y atkf:n tfr:i ka:y ks:c cenh:tcnk cenhe:tcnkTCNK corh: sw:s"},
    };
    for (const auto& r : rows) {
        const Read read = ReadKeys(r.keys);
        ASSERT_TRUE(read.Ok) << r.keys << ": " << read.Reason;
        EXPECT_EQ(read.GameRules.Name, r.name) << r.keys;
        const std::string written = RulesRecordKeys(read.GameRules, read.AttackersFirst);
        if (r.written) EXPECT_EQ(written, r.written) << r.keys;
        const Read again = ReadKeys(written);
        EXPECT_TRUE(again.Ok && again.GameRules == read.GameRules && again.AttackersFirst == read.AttackersFirst)
            << written;
    }
}

TEST(RulesRecord, AKeyTheRuleBoardCannotPlayIsRefusedByName) {
    // A key OpenTafl does not write, or a value the rule board has no parameter for, refuses the record, naming both.
    const std::string cannot = ", which JarlsVakt cannot play";
    const struct { const char* keys; std::string reason; } rows[] = {
        {"ks:w", "the rules record's ks:w asks for a King weaker than strong (s) or strong on and beside the throne (c)" +
                     cannot},
        {"ka:h", "the rules record's ka:h asks for a King armed for one part of a capture only" + cannot},
        {"kj:r", "the rules record's kj:r asks for a King who jumps" + cannot},
        {"ber:c", "the rules record's ber:c asks for berserk moves" + cannot},
        {"afor:c3,c4", "the rules record's afor:c3,c4 asks for fortresses of the attackers" + cannot},
        {"esc:e", "the rules record's cor:default asks for corner squares beside the edge escape" + cannot},
        {"cor:", "the rules record's cor: asks for corners other than the board's four" + cannot},
        {"esc:x", "the rules record's esc:x asks for an escape onto neither the corners nor the edge" + cannot},
        {"cors:tK", "the rules record's cors:tK asks for corners stopped on by others than the King alone" + cannot},
        {"corh:tT", "the rules record's corh:tT asks for corners hostile to some pieces only" + cannot},
        {"cens:", "the rules record's cens: asks for a centre on which neither the King alone nor every piece may stop" +
                      cannot},
        {"cenp:K", "the rules record's cenp:K asks for a centre that some pieces may not pass" + cannot},
        {"cenre:tT", "the rules record's cenre:tT asks for a centre a piece may not come back to" + cannot},
        {"cenhe:t", "the rules record's cenhe:t asks for an empty centre hostile to some pieces only" + cannot},
        {"ka:n cenh:", "the rules record's cenh: asks for an occupied centre hostile otherwise than the empty one" +
                           cannot},
        {"cenh:tT", "the rules record's cenh:tT asks for an occupied centre hostile otherwise than the empty one" +
                        cannot},
        {"sw:w", "the rules record's sw:w asks for shieldwalls that a hostile corner does not close" + cannot},
        {"tfr:l", "the rules record's tfr:l asks for a threefold repetition lost by the side that makes it" + cannot},
        {"atkf:x", "the rules record's atkf:x is neither y nor n"},
        {"cenh:tx", "the rules record's cenh:tx names 'x', which is no piece letter (t, c, n, k, T, C, N, K)"},
        {"dim:7 lcap:y", "the rules record's lcap:y is no OpenTafl rules key"},
        {"dim:7 esc", "the rules record holds esc, which is no key:value entry"},
    };
    for (const auto& r : rows) EXPECT_EQ(ReadKeys(r.keys).Reason, r.reason) << r.keys;
}
