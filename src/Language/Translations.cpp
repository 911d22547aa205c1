// SPDX-License-Identifier: MIT
#include "Language/Translations.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLibraryInfo>

/// As the pictures are (Images.cpp).
static void registerCatalogues()
{
    Q_INIT_RESOURCE(translations);
}

namespace tessera {

namespace {

constexpr const char* kCatalogueResource = ":/translations";

} // namespace

CatalogueFolders CatalogueFolders::usual()
{
    registerCatalogues();
    return {
        QString::fromLatin1(kCatalogueResource),
        QLibraryInfo::path(QLibraryInfo::TranslationsPath)};
}

Translations::Translations(const QStringList& wanted, const CatalogueFolders& folders)
{
    for (const QString& name : wanted) {
        const QLocale language(name);
        // Who wants English before another language gets it. QLocale knows "C" for all it does not
        // know, too, and the next one may be better.
        if (language.language() == QLocale::English || load(language, folders)) {
            break;
        }
    }
}

bool Translations::load(const QLocale& language, const CatalogueFolders& folders)
{
    const QString separator = QStringLiteral("_");
    if (language.language() == QLocale::C
        || !m_ofProgram.load(language, QStringLiteral("tessera"), separator, folders.program)) {
        return false;
    }
    m_language = language;
    // Without it only the few texts of Qt's own dialogs stay English.
    if (m_ofQt.load(language, QStringLiteral("qtbase"), separator, folders.qt)) {
        QCoreApplication::installTranslator(&m_ofQt);
    }
    QCoreApplication::installTranslator(&m_ofProgram);
    QGuiApplication::setLayoutDirection(language.textDirection());
    return true;
}

std::string folderInLanguage(const std::string& folder, const QLocale& language)
{
    const QString withCountry = language.name();
    for (const QString& name : {withCountry, withCountry.section(QLatin1Char('_'), 0, 0)}) {
        std::string inLanguage = folder + '/' + name.toStdString();
        if (!folder.empty() && QFileInfo(QFile::decodeName(inLanguage.c_str())).isDir()) {
            return inLanguage;
        }
    }
    return folder;
}

} // namespace tessera
