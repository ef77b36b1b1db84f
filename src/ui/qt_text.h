// Texts of the product (UTF-8) and of Qt.
#pragma once

#include "helpers/text.h"

#include <QString>

namespace quillon {

inline QString ToQt(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline Text FromQt(const QString& text)
{
    return text.toStdString();
}

/// A text of several lines: CR LF in the product, a line feed in Qt's editors.
inline QString LinesToQt(std::string_view text)
{
    return ToQt(ReplaceAll(text, "\r\n", "\n"));
}

inline Text LinesFromQt(const QString& text)
{
    return ReplaceAll(FromQt(text), "\n", "\r\n");
}

} // namespace quillon
