// What Qt itself says, in Swedish: file, colour and font dialogs, the context menus of fields,
// buttons and keys. Qt comes without Swedish, so the program brings its own.
#pragma once

#include <QTranslator>

class QCoreApplication;

namespace quillon {

class SwedishTexts : public QTranslator {
public:
    using QTranslator::QTranslator;

    QString translate(const char* context, const char* source, const char* disambiguation,
                      int n) const override;
    bool isEmpty() const override { return false; }
};

/// From now on Qt speaks Swedish, and writes dates and sizes as Swedes do.
void InstallSwedishTexts(QCoreApplication& application);

} // namespace quillon
