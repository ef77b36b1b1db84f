// The settings sections of the project file for the background screen of the setup, key by key in
// the order on file.
#pragma once

#include "project/stored_key.h"

namespace quillon::section {

// clang-format off
inline constexpr ProjectKey<DesBackground> kDesBackground[] = {
    {"Type",            &DesBackground::Type,            Stored::AsNumber},
    {"BackColor1",      &DesBackground::BackColor1,      Stored::AsNumber},
    {"BackColor2",      &DesBackground::BackColor2,      Stored::AsNumber},
    {"BlendDirection",  &DesBackground::BlendDirection,  Stored::AsNumber},
    {"BlendDepth",      &DesBackground::BlendDepth,      Stored::AsText, 50},
    {"PictureFilename", &DesBackground::PictureFilename, Stored::AsText, 200},
    {"StretchPicture",  &DesBackground::StretchPicture,  Stored::AsFlag},
};

inline constexpr ProjectKey<DesTitle> kDesTitle[] = {
    {"TitleText",           &DesTitle::TitleText,           Stored::AsText, 200},
    {"TitleForeColor",      &DesTitle::TitleForeColor,      Stored::AsNumber},
    {"TitleAlignment",      &DesTitle::TitleAlignment,      Stored::AsNumber},
    {"TitleShadow",         &DesTitle::TitleShadow,         Stored::AsFlag},
    {"TitleCharInterSpace", &DesTitle::TitleCharInterSpace, Stored::AsText, 16},
    {"TitleFontName",       &DesTitle::TitleFontName,       Stored::AsText, 200},
    {"TitleFontSize",       &DesTitle::TitleFontSize,       Stored::AsNumber},
    {"TitleFontBold",       &DesTitle::TitleFontBold,       Stored::AsFlag},
    {"TitleFontItalic",     &DesTitle::TitleFontItalic,     Stored::AsFlag},
};

inline constexpr ProjectKey<DesTitleUnderline> kDesTitleUnderline[] = {
    {"UnderlineType",     &DesTitleUnderline::UnderlineType,     Stored::AsNumber},
    {"UnderlineColor1",   &DesTitleUnderline::UnderlineColor1,   Stored::AsNumber},
    {"UnderlineColor2",   &DesTitleUnderline::UnderlineColor2,   Stored::AsNumber},
    {"UnderlineHeight",   &DesTitleUnderline::UnderlineHeight,   Stored::AsNumber},
    {"UnderlineTextOnly", &DesTitleUnderline::UnderlineTextOnly, Stored::AsNumber},
};

inline constexpr ProjectKey<DesSubTitle> kDesSubTitle[] = {
    {"SubTitleText", &DesSubTitle::SubTitleText, Stored::AsText, 255},
};

inline constexpr ProjectKey<DesTextBox> kDesTextBox[] = {
    {"BoxTitle",           &DesTextBox::BoxTitle,           Stored::AsText, 200},
    {"BoxText",            &DesTextBox::BoxText,            Stored::AsLines, 3000},
    {"BoxTitleColor",      &DesTextBox::BoxTitleColor,      Stored::AsNumber},
    {"BoxTextColor",       &DesTextBox::BoxTextColor,       Stored::AsNumber},
    {"BoxBackColor",       &DesTextBox::BoxBackColor,       Stored::AsNumber},
    {"BoxUseBackColor",    &DesTextBox::BoxUseBackColor,    Stored::AsFlag},
    {"ShowTextBox",        &DesTextBox::ShowTextBox,        Stored::AsFlag},
    {"BoxCenter",          &DesTextBox::BoxCenter,          Stored::AsFlag},
    {"BoxPlaceBelowTitle", &DesTextBox::BoxPlaceBelowTitle, Stored::AsFlag},
    {"BoxWidth",           &DesTextBox::BoxWidth,           Stored::AsNumber},
    {"BoxHeight",          &DesTextBox::BoxHeight,          Stored::AsNumber},
    {"BoxXPos",            &DesTextBox::BoxXPos,            Stored::AsPixelsX},
    {"BoxYPos",            &DesTextBox::BoxYPos,            Stored::AsPixelsY},
    {"BoxXPosTwips",       &DesTextBox::BoxXPos,            Stored::AsNumber},
    {"BoxYPosTwips",       &DesTextBox::BoxYPos,            Stored::AsNumber},
    {"BoxTitleFontName",   &DesTextBox::BoxTitleFontName,   Stored::AsText, 200},
    {"BoxTitleFontSize",   &DesTextBox::BoxTitleFontSize,   Stored::AsNumber},
    {"BoxTitleFontBold",   &DesTextBox::BoxTitleFontBold,   Stored::AsFlag},
    {"BoxTitleFontItalic", &DesTextBox::BoxTitleFontItalic, Stored::AsFlag},
    {"BoxTextFontName",    &DesTextBox::BoxTextFontName,    Stored::AsText, 200},
    {"BoxTextFontSize",    &DesTextBox::BoxTextFontSize,    Stored::AsNumber},
    {"BoxTextFontBold",    &DesTextBox::BoxTextFontBold,    Stored::AsFlag},
    {"BoxTextFontItalic",  &DesTextBox::BoxTextFontItalic,  Stored::AsFlag},
};

inline constexpr ProjectKey<DesRTFbox> kDesRTFbox[] = {
    {"RTFfilename",     &DesRTFbox::RTFfilename,     Stored::AsText, 200},
    {"RTFboxBackColor", &DesRTFbox::RTFboxBackColor, Stored::AsNumber},
    {"ShowRTFbox",      &DesRTFbox::ShowRTFbox,      Stored::AsFlag},
    {"RTFboxWidth",     &DesRTFbox::RTFboxWidth,     Stored::AsNumber},
    {"RTFboxHeight",    &DesRTFbox::RTFboxHeight,    Stored::AsNumber},
    {"RTFboxXPos",      &DesRTFbox::RTFboxXPos,      Stored::AsPixelsX},
    {"RTFboxYPos",      &DesRTFbox::RTFboxYPos,      Stored::AsPixelsY},
    {"RTFboxXPosTwips", &DesRTFbox::RTFboxXPos,      Stored::AsNumber},
    {"RTFboxYPosTwips", &DesRTFbox::RTFboxYPos,      Stored::AsNumber},
};

// The number of the picture, 1 to 3, follows each key: the first one on file is
// "PictureFilename1".
inline constexpr ProjectKey<DesPicture> kDesPicture[] = {
    {"PictureFilename",   &DesPicture::PictureFilename,   Stored::AsText, 200},
    {"UseTransparentBkg", &DesPicture::UseTransparentBkg, Stored::AsFlag},
    {"StretchPicture",    &DesPicture::StretchPicture,    Stored::AsFlag},
    {"PictureWidth",      &DesPicture::PictureWidth,      Stored::AsNumber},
    {"PictureHeight",     &DesPicture::PictureHeight,     Stored::AsNumber},
    {"PictureXPos",       &DesPicture::PictureXPos,       Stored::AsPixelsX},
    {"PictureYPos",       &DesPicture::PictureYPos,       Stored::AsPixelsY},
    {"PictureXPosTwips",  &DesPicture::PictureXPos,       Stored::AsNumber},
    {"PictureYPosTwips",  &DesPicture::PictureYPos,       Stored::AsNumber},
};

// What the three pictures share; it follows them.
inline constexpr ProjectKey<DesPictures> kDesPictures[] = {
    {"TransparentColorNr",            &DesPictures::TransparentColorNr,            Stored::AsNumber},
    {"HidePicturesWhenDialogsShowed", &DesPictures::HidePicturesWhenDialogsShowed, Stored::AsNumberOneIfMissing},
};

inline constexpr ProjectKey<DesPicturesAnim> kDesPicturesAnim[] = {
    {"NrAnimPictures",   &DesPicturesAnim::NrAnimPictures,  Stored::AsNumber},
    {"StretchPicture",   &DesPicturesAnim::StretchPicture,  Stored::AsFlag},
    {"PictureWidth",     &DesPicturesAnim::PictureWidth,    Stored::AsNumber},
    {"PictureHeight",    &DesPicturesAnim::PictureHeight,   Stored::AsNumber},
    {"PictureXPos",      &DesPicturesAnim::PictureXPos,     Stored::AsPixelsX},
    {"PictureYPos",      &DesPicturesAnim::PictureYPos,     Stored::AsPixelsY},
    {"PictureXPosTwips", &DesPicturesAnim::PictureXPos,     Stored::AsNumber},
    {"PictureYPosTwips", &DesPicturesAnim::PictureYPos,     Stored::AsNumber},
    {"IntervalSeconds",  &DesPicturesAnim::IntervalSeconds, Stored::AsNumber},
};

inline constexpr ProjectKey<DesLogotype> kDesLogotype[] = {
    {"LogotypeFilename",   &DesLogotype::LogotypeFilename,   Stored::AsText, 200},
    {"LogotypeAlignment",  &DesLogotype::LogotypeAlignment,  Stored::AsNumber},
    {"UseTransparentBkg",  &DesLogotype::UseTransparentBkg,  Stored::AsFlag},
    {"TransparentColorNr", &DesLogotype::TransparentColorNr, Stored::AsNumber},
    {"LogotypeWMFWidth",   &DesLogotype::LogotypeWMFWidth,   Stored::AsNumber},
    {"LogotypeWMFHeight",  &DesLogotype::LogotypeWMFHeight,  Stored::AsNumber},
};

inline constexpr ProjectKey<DesPercentGauge> kDesPercentGauge[] = {
    {"GaugeAlignmentH", &DesPercentGauge::GaugeAlignmentH, Stored::AsNumber},
    {"GaugeAlignmentV", &DesPercentGauge::GaugeAlignmentV, Stored::AsNumber},
};

inline constexpr ProjectKey<DesSound> kDesSound[] = {
    {"BackSoundFilename", &DesSound::BackSoundFilename, Stored::AsText, 200},
};
// clang-format on

} // namespace quillon::section
