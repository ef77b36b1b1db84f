#include "ui/swedish/swedish_texts.h"

#include "ui/swedish/swedish_table.h"

#include <QtWidgets>
#include <map>
#include <string_view>

namespace quillon {

namespace {

using Place = std::pair<std::string_view, std::string_view>;

const std::map<Place, const char*>& TextsByPlace()
{
    static const std::map<Place, const char*> texts = [] {
        std::map<Place, const char*> byPlace;
        for (const SwedishText& text : kSwedishTexts)
            byPlace[{text.context, text.source}] = text.swedish;
        return byPlace;
    }();
    return texts;
}

} // namespace

QString SwedishTexts::translate(const char* context, const char* source, const char*, int) const
{
    if (!context || !source)
        return {};
    const auto found = TextsByPlace().find({context, source});
    return found == TextsByPlace().end() ? QString() : QString::fromUtf8(found->second);
}

void InstallSwedishTexts(QCoreApplication& application)
{
    QLocale::setDefault(QLocale(QLocale::Swedish, QLocale::Sweden));
    QCoreApplication::installTranslator(new SwedishTexts(&application));
}

} // namespace quillon
