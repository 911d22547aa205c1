// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QStringList>
#include <QTranslator>

#include <string>

namespace tessera {

/// Where the catalogues are: the program's own are part of it, so that they are always of its
/// version and found wherever it is started from; Qt's are the system's.
struct CatalogueFolders {
    QString program;
    QString qt;

    static CatalogueFolders usual();
};

/// Windows in the user's language, while it lives: the program's texts, those of Qt's own dialogs,
/// and the direction in which windows are laid out. Nothing where the texts as they stand in the
/// code, which are English, are wanted, or no others can be loaded.
///
/// To be made once the system's own words are installed, which these come before.
class Translations final {
public:
    /// `wanted` are names of languages, best first, as QLocale::uiLanguages() gives them.
    explicit Translations(
        const QStringList& wanted, const CatalogueFolders& folders = CatalogueFolders::usual());

    /// What windows are in.
    [[nodiscard]] const QLocale& language() const { return m_language; }

private:
    bool load(const QLocale& language, const CatalogueFolders& folders);

    QLocale m_language{QLocale::English};
    QTranslator m_ofQt;
    QTranslator m_ofProgram;
};

/// The folder in it with the same pages in the language: "help/de" of "help". The folder itself
/// where there is none. Paths as bytes.
[[nodiscard]] std::string folderInLanguage(const std::string& folder, const QLocale& language);

} // namespace tessera
