#include "rtf/rtf_losses.h"

#include "rtf/rtf_tokens.h"
#include "rtf/rtf_words.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace quillon {

namespace {

using Kind = RtfToken::Kind;

constexpr int kAlways = std::numeric_limits<int>::min();

struct Loss {
    std::string_view word;
    const char* name;
    // The number after the word from which on it counts, since 0 switches most words off. A word
    // without a number is switched on.
    int minNumber = 1;
};

constexpr const char* kPictures = "bilder";
constexpr const char* kDrawings = "ritade figurer";
constexpr const char* kHeaders = "sidhuvud";
constexpr const char* kFooters = "sidfot";
constexpr const char* kLists = "automatiska listor";
constexpr const char* kShiftedBaseline = "höjda eller sänkta tecken";
constexpr const char* kHidden = "dold text";
constexpr const char* kUnderlines = "streckade, dubbla eller vågiga understrykningar";
constexpr const char* kEffects = "konturer, skuggor eller relief på tecken";
constexpr const char* kFrames = "ramar";
constexpr const char* kTabs = "tabbar som högerställer eller fyller ut";
constexpr const char* kBreaks = "sidbrytningar";

// In the order in which they are reported.
// clang-format off
constexpr Loss kLosses[] = {
    {"pict",       kPictures, kAlways},  {"shppict",    kPictures, kAlways},
    {"object",     "inbäddade objekt", kAlways},
    {"shp",        kDrawings, kAlways},  {"do",         kDrawings, kAlways},
    {"trowd",      "tabeller", kAlways},
    {"header",     kHeaders, kAlways},   {"headerf",    kHeaders, kAlways},
    {"headerl",    kHeaders, kAlways},   {"headerr",    kHeaders, kAlways},
    {"footer",     kFooters, kAlways},   {"footerf",    kFooters, kAlways},
    {"footerl",    kFooters, kAlways},   {"footerr",    kFooters, kAlways},
    {"footnote",   "fotnoter", kAlways},
    {"annotation", "kommentarer", kAlways},
    {"field",      "fält och länkar", kAlways},
    {"listtext",   kLists, kAlways},     {"ls",         kLists},
    {"pn",         kLists, kAlways},     {"pntext",     kLists, kAlways},
    {"dn",         kShiftedBaseline},    {"up",         kShiftedBaseline},
    {"deleted",    kHidden},             {"v",          kHidden},
    {"uld",        kUnderlines},         {"uldash",     kUnderlines},
    {"uldashd",    kUnderlines},         {"uldashdd",   kUnderlines},
    {"uldb",       kUnderlines},         {"ulth",       kUnderlines},
    {"ulw",        kUnderlines},         {"ulwave",     kUnderlines},
    {"embo",       kEffects},            {"impr",       kEffects},
    {"outl",       kEffects},            {"shad",       kEffects},
    {"box",        kFrames, kAlways},    {"brdrb",      kFrames, kAlways},
    {"brdrl",      kFrames, kAlways},    {"brdrr",      kFrames, kAlways},
    {"brdrt",      kFrames, kAlways},    {"chbrdr",     kFrames, kAlways},
    {"cbpat",      "bakgrundsfärg på stycken"},
    {"tldot",      kTabs, kAlways},      {"tlhyph",     kTabs, kAlways},
    {"tlul",       kTabs, kAlways},      {"tqc",        kTabs, kAlways},
    {"tqdec",      kTabs, kAlways},      {"tqr",        kTabs, kAlways},
    {"page",       kBreaks, kAlways},    {"pagebb",     kBreaks},
    {"cols",       "spalter", 2},
};
// clang-format on

/// Goes through the file as its reader does: what is in the tables at its front is no text, and
/// what belongs to a picture or a note is lost with it.
class LossFinder {
public:
    explicit LossFinder(std::string_view bytes) : tokens_(bytes) {}

    std::vector<Text> Find()
    {
        while (const auto token = tokens_.Next()) {
            Take(*token);
            if (depth_ == 0)
                break;
        }
        std::vector<Text> names;
        for (std::size_t i = 0; i < std::size(kLosses); ++i)
            if (isFound_[i] && (names.empty() || names.back() != kLosses[i].name))
                names.emplace_back(kLosses[i].name);
        return names;
    }

private:
    void Take(const RtfToken& token)
    {
        const bool wasNew = std::exchange(isGroupNew_, token.kind == Kind::Open);
        if (token.kind == Kind::Open) {
            ++depth_;
        } else if (token.kind == Kind::Close) {
            if (skippedFrom_ == depth_)
                skippedFrom_ = 0;
            --depth_;
        } else if (skippedFrom_ == 0) {
            const bool isAside = std::exchange(isIgnorable_, wasNew && token.text == "*" &&
                                                                 token.kind == Kind::Symbol);
            if (token.kind == Kind::Word)
                Note(token);
            if (isAside || (token.kind == Kind::Word && HoldsNoText(token.text)))
                skippedFrom_ = depth_;
        }
    }

    static bool HoldsNoText(std::string_view word)
    {
        return word == "fonttbl" || word == "colortbl" || IsIgnorableDestination(word);
    }

    void Note(const RtfToken& token)
    {
        const auto* const loss = std::ranges::find(kLosses, token.text, &Loss::word);
        if (loss != std::end(kLosses) && token.number.value_or(1) >= loss->minNumber)
            isFound_[static_cast<std::size_t>(loss - std::begin(kLosses))] = true;
    }

    RtfTokens tokens_;
    int depth_ = 0;
    int skippedFrom_ = 0; // the group in which nothing counts any more; 0: none
    bool isGroupNew_ = false;
    bool isIgnorable_ = false; // a group that its first word alone says something of
    std::array<bool, std::size(kLosses)> isFound_{};
};

} // namespace

std::vector<Text> RtfLosses(std::string_view bytes)
{
    return LossFinder(bytes).Find();
}

} // namespace quillon
