// SPDX-License-Identifier: MIT
#include "About/AboutWindow.h"

#include "Base/DisplayText.h"
#include "Widgets/Images.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSysInfo>
#include <QTabWidget>
#include <QVBoxLayout>

#include <utility>

/// As the pictures are (Images.cpp).
static void registerLicense()
{
    Q_INIT_RESOURCE(license);
}

namespace tessera {

namespace {

constexpr int kPictureSize = 64;
constexpr double kTitleScale = 1.6; ///< of the desktop's font
constexpr QSize kAboutSize(560, 420);

QString license()
{
    registerLicense();
    QFile file(QStringLiteral(":/license.txt"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// NOLINTBEGIN(cppcoreguidelines-owning-memory): their parents own the widgets

QPlainTextEdit* readOnlyText(const QString& name)
{
    auto* const text = new QPlainTextEdit;
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setAccessibleName(name);
    // The keyboard moves a cursor in it, by which text is selected.
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return text;
}

QLayout* headline()
{
    auto* const picture = new QLabel;
    picture->setPixmap(QIcon(imageNamed("bullseye")).pixmap(kPictureSize));
    auto* const name = new QLabel(QStringLiteral("Tessera"));
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * kTitleScale);
    large.setBold(true);
    name->setFont(large);
    auto* const version
        = new QLabel(AboutWindow::tr("Version %1").arg(QStringLiteral(TESSERA_VERSION)));
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const purpose = new QLabel(AboutWindow::tr("Shows where the space on a disk goes."));
    purpose->setWordWrap(true);
    auto* const texts = new QVBoxLayout;
    texts->addWidget(name);
    texts->addWidget(version);
    texts->addWidget(purpose);
    auto* const row = new QHBoxLayout;
    row->setSpacing(kPictureSize / 4);
    row->addWidget(picture);
    row->addLayout(texts, 1);
    return row;
}

} // namespace

AboutWindow::AboutWindow(const AboutServices& services)
    : m_libraries({{"Qt", qVersion()}})
    , m_versions(readOnlyText(tr("Versions")))
{
    m_libraries.insert(m_libraries.end(), services.libraries.begin(), services.libraries.end());
#ifdef TESSERA_QT_PDF_VERSION
    m_libraries.push_back({"Qt Pdf", TESSERA_QT_PDF_VERSION});
#endif
    makeContent();
    showVersions();
    askArchiver(services);
}

AboutWindow::~AboutWindow() = default;

void AboutWindow::makeContent()
{
    setWindowTitle(tr("About Tessera"));
    m_versions->setObjectName(QStringLiteral("versions"));
    auto* const terms = readOnlyText(tr("License"));
    terms->setObjectName(QStringLiteral("license"));
    terms->setPlainText(license());
    auto* const tabs = new QTabWidget;
    tabs->addTab(m_versions, tr("&Versions"));
    tabs->addTab(terms, tr("&License"));
    auto* const buttons = new QDialogButtonBox;
    // Without a picture, which not every icon theme draws for dark windows.
    auto* const close = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    auto* const copy = buttons->addButton(tr("&Copy Versions"), QDialogButtonBox::ActionRole);
    connect(copy, &QPushButton::clicked, this, [this] {
        QGuiApplication::clipboard()->setText(versions());
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(headline());
    layout->addWidget(tabs);
    layout->addWidget(buttons);
    close->setDefault(true);
    close->setFocus();
    resize(kAboutSize);
}

// NOLINTEND(cppcoreguidelines-owning-memory)

/// What makes the archives is another program, which has libraries of its own.
void AboutWindow::askArchiver(const AboutServices& services)
{
    if (!services.makeTask) {
        return;
    }
    m_question = services.makeTask();
    m_question->start(services.archiver, {"--libraries"}, [this](int status) {
        const std::unique_ptr<Task> ended = std::move(m_question);
        if (status == 0) {
            const std::vector<LibraryVersion> heard = readLibraryVersions(ended->output());
            m_libraries.insert(m_libraries.end(), heard.begin(), heard.end());
            showVersions();
        }
    });
}

/// Reports are read by the program's developers: these lines are in no language.
QString AboutWindow::versions() const
{
    QStringList lines{QStringLiteral("Tessera " TESSERA_VERSION)};
    for (const LibraryVersion& library : m_libraries) {
        lines.append(displayText(library.name) + QLatin1Char(' ') + displayText(library.version));
    }
    lines.append(
        QSysInfo::prettyProductName() + QLatin1String(", ") + QSysInfo::kernelType()
        + QLatin1Char(' ') + QSysInfo::kernelVersion());
    lines.append(QLatin1String("Qt platform ") + QGuiApplication::platformName());
    return lines.join(QLatin1Char('\n'));
}

void AboutWindow::showVersions()
{
    m_versions->setPlainText(versions());
}

void AboutWindow::showWindow(const QWidget* above)
{
    if (above != nullptr && !isVisible()) {
        move(above->frameGeometry().center() - rect().center());
    }
    show();
    raise();
    activateWindow();
}

} // namespace tessera
