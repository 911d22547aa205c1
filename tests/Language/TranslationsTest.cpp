// SPDX-License-Identifier: MIT
#include "Language/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessera {
namespace {

QString undo()
{
    return QCoreApplication::translate("MainMenu", "&Undo");
}

const QString kGermanUndo = QStringLiteral("&Rückgängig");
const QString kEnglishUndo = QStringLiteral("&Undo");

/// Folders of catalogues that a test fills itself.
class CatalogueFolder {
public:
    CatalogueFolders folders() const { return {m_folder.path(), m_folder.path()}; }
    void copyGerman(const QString& name) const
    {
        const QString source = CatalogueFolders::usual().program + QStringLiteral("/tessera_de.qm");
        EXPECT_TRUE(QFile::copy(source, m_folder.filePath(name)));
    }
    void write(const QString& name, const QByteArray& content) const
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

private:
    QTemporaryDir m_folder;
};

TEST(Translations, AreInTheLanguageThatIsWanted)
{
    const Translations translations({QStringLiteral("de-DE"), QStringLiteral("de")});
    EXPECT_EQ(undo(), kGermanUndo);
    EXPECT_EQ(translations.language().language(), QLocale::German);
}

TEST(Translations, OfALanguageServeAllItsCountries)
{
    const Translations translations({QStringLiteral("de-CH")});
    EXPECT_EQ(undo(), kGermanUndo);
    EXPECT_EQ(translations.language().territory(), QLocale::Switzerland);
}

TEST(Translations, EndWithTheObject)
{
    {
        const Translations translations({QStringLiteral("de")});
    }
    EXPECT_EQ(undo(), kEnglishUndo);
}

TEST(Translations, AreInTheFirstLanguageThatThereIs)
{
    const Translations translations(
        {QStringLiteral("tlh"), QStringLiteral("is-IS"), QStringLiteral("de")});
    EXPECT_EQ(undo(), kGermanUndo);
}

TEST(Translations, AreNotInALanguageThatIsWantedAfterEnglish)
{
    const Translations translations({QStringLiteral("en-GB"), QStringLiteral("de")});
    EXPECT_EQ(undo(), kEnglishUndo);
    EXPECT_EQ(translations.language().language(), QLocale::English);
}

TEST(Translations, AreEnglishWhereNoneAreWanted)
{
    const Translations translations({});
    EXPECT_EQ(undo(), kEnglishUndo);
    EXPECT_EQ(translations.language().language(), QLocale::English);
}

TEST(Translations, AreEnglishWhereTheCatalogueIsMissing)
{
    const CatalogueFolder folder;
    const Translations translations({QStringLiteral("de")}, folder.folders());
    EXPECT_EQ(undo(), kEnglishUndo);
    EXPECT_EQ(translations.language().language(), QLocale::English);
}

TEST(Translations, AreEnglishWhereTheCatalogueIsNone)
{
    const CatalogueFolder folder;
    folder.write(QStringLiteral("tessera_de.qm"), "not a catalogue");
    const Translations translations({QStringLiteral("de")}, folder.folders());
    EXPECT_EQ(undo(), kEnglishUndo);
    EXPECT_EQ(translations.language().language(), QLocale::English);
}

TEST(Translations, NeedNoneOfQt)
{
    const CatalogueFolder folder;
    folder.copyGerman(QStringLiteral("tessera_de.qm"));
    const Translations translations({QStringLiteral("de")}, folder.folders());
    EXPECT_EQ(undo(), kGermanUndo);
}

TEST(Translations, TakeThoseOfQtToo)
{
    const Translations translations({QStringLiteral("de")});
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Abbrechen"));
}

TEST(Translations, TakeNoneOfQtInALanguageOfNoneOfTheirOwn)
{
    const CatalogueFolders folders{QStringLiteral("/nonexistent"), CatalogueFolders::usual().qt};
    const Translations translations({QStringLiteral("de")}, folders);
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancel"));
}

TEST(Translations, CountAsTheLanguageDoes)
{
    const Translations translations({QStringLiteral("de")});
    EXPECT_EQ(
        QCoreApplication::translate("TrashStepTexts", "%n items", nullptr, 1),
        QStringLiteral("1 Objekt"));
    EXPECT_EQ(
        QCoreApplication::translate("TrashStepTexts", "%n items", nullptr, 2),
        QStringLiteral("2 Objekte"));
}

/// As a system has them that calls the trash otherwise.
class OwnWords final : public QTranslator {
    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* text, const char* /*comment*/, int /*n*/)
        const override
    {
        const QString source = QString::fromUtf8(text);
        return source == kEnglishUndo || source == QLatin1String("Bin") ? QStringLiteral("Revert")
                                                                        : QString();
    }
};

TEST(Translations, ComeBeforeTheSystemsOwnWords)
{
    OwnWords words;
    QCoreApplication::installTranslator(&words);
    EXPECT_EQ(undo(), QStringLiteral("Revert"));
    const Translations translations({QStringLiteral("de")});
    EXPECT_EQ(undo(), kGermanUndo);
    EXPECT_EQ(QCoreApplication::translate("Any", "Bin"), QStringLiteral("Revert"))
        << "which no translator has seen";
}

TEST(Translations, TurnWindowsAroundWhereTheLanguageRunsFromTheRight)
{
    const CatalogueFolder folder;
    folder.copyGerman(QStringLiteral("tessera_ar.qm"));
    const Translations translations({QStringLiteral("ar")}, folder.folders());
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST(Translations, LeaveWindowsAsTheyAreInALanguageThatThereIsNot)
{
    const CatalogueFolder folder;
    const Translations translations({QStringLiteral("ar")}, folder.folders());
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

TEST(FolderInLanguage, IsThatOfTheLanguage)
{
    const QTemporaryDir folder;
    EXPECT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("de")));
    const std::string help = folder.path().toStdString();
    EXPECT_EQ(folderInLanguage(help, QLocale(QStringLiteral("de_AT"))), help + "/de");
    EXPECT_EQ(folderInLanguage(help, QLocale(QStringLiteral("fr_FR"))), help);
}

TEST(FolderInLanguage, IsThatOfTheCountryWhereThereIsOne)
{
    const QTemporaryDir folder;
    EXPECT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("pt")));
    EXPECT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("pt_BR")));
    const std::string help = folder.path().toStdString();
    EXPECT_EQ(folderInLanguage(help, QLocale(QStringLiteral("pt_BR"))), help + "/pt_BR");
    EXPECT_EQ(folderInLanguage(help, QLocale(QStringLiteral("pt_PT"))), help + "/pt");
}

TEST(FolderInLanguage, OfNoFolderIsNone)
{
    EXPECT_EQ(folderInLanguage({}, QLocale(QLocale::German)), "");
}

} // namespace
} // namespace tessera
