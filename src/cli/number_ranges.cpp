#include "cli/number_ranges.h"

#include "actions/install_options.h"
#include "builder/create_form.h"
#include "design/background.h"
#include "design/number_fields.h"
#include "design/transparent_colours.h"
#include "helpers/text.h"
#include "platform/registry_roots.h"

#include <algorithm>
#include <iterator>

namespace quillon::cli {

namespace {

struct FieldRange {
    std::string_view section;
    std::string_view key;
    NumberRange range;
};

constexpr NumberRange kCheckBox{0, 1};
constexpr NumberRange kAlignment{std::int64_t(DesignAlignment::Begin),
                                 std::int64_t(DesignAlignment::End)};
constexpr NumberRange kColourName{0, std::int64_t(kTransparentColors.size()) - 1};
constexpr NumberRange kRegistryRoot{0, std::int64_t(kRegistryRoots.size()) - 1};

// clang-format off
constexpr FieldRange kRanges[] = {
    {"Media",             "TargetMedia",                   {1, std::int64_t(kMedia.size())}},
    {"OperatingSystem",   "TargetOperatingSystem",         {0, std::int64_t(kTargetOperatingSystems.size()) - 1}},
    {"Compression",       "KeepCompressedFilesOneAndOne",  kCheckBox},
    {"Sign",              "SignTimeStampSystem",           {0, std::int64_t(kTimeStampSystems.size()) - 1}},
    {"RunAppSelfX",       "DD_iHKEYIndex",                 kRegistryRoot},
    {"FontOptions",       "NeverReplaceExistingFonts",     kCheckBox},
    {"Updates",           "AdvUpdateRegHKEYIndex",         kRegistryRoot},
    {"DesBackground",     "Type",                          {std::int64_t(BackgroundType::Colours), std::int64_t(BackgroundType::Picture)}},
    {"DesBackground",     "BlendDirection",                {kNoBlend, kMaxBlendDirection}},
    {"DesTitle",          "TitleAlignment",                kAlignment},
    {"DesTitleUnderline", "UnderlineType",                 {0, std::int64_t(UnderlineKind::Blended)}},
    {"DesTitleUnderline", "UnderlineTextOnly",             kCheckBox},
    {"DesPictures",       "TransparentColorNr",            kColourName},
    {"DesPictures",       "HidePicturesWhenDialogsShowed", kCheckBox},
    {"DesLogotype",       "TransparentColorNr",            kColourName},
    {"DesLogotype",       "LogotypeAlignment",             kAlignment},
    {"DesPercentGauge",   "GaugeAlignmentH",               kAlignment},
    {"DesPercentGauge",   "GaugeAlignmentV",               kAlignment},
    {"FileComponents",    "CompDefault",                   kCheckBox},
    {"FileComponents",    "CompCanChangeDir",              kCheckBox},
    {"FileComponents",    "CompMustAlwaysBeInstalled",     kCheckBox},
    {"FileComponents",    "CompAdvOnlyUpdate",             kCheckBox},
};
// clang-format on

} // namespace

NumberRange RangeOf(std::string_view section, std::string_view key, NumberRange ofType)
{
    const auto* const found = std::ranges::find_if(kRanges, [&](const FieldRange& field) {
        return EqualIgnoreCase(field.section, section) && EqualIgnoreCase(field.key, key);
    });
    return found == std::end(kRanges) ? ofType : found->range;
}

} // namespace quillon::cli
