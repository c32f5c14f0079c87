#include "panelwindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QTranslator>
#include <QVBoxLayout>

#include <vornappstartup/translationcenter.h>

#include "leveltrace.h"
#include "reportitems.h"
#include "supervision.h"

namespace {

const QLatin1String Context("MeasurementPanel_");

/// The folder beside the program, or the one where translations are installed.
QString catalogues()
{
    const QDir program(QApplication::applicationDirPath());
    const QString beside = program.filePath(QStringLiteral("translations"));
    return QDir(beside).exists() ? beside : program.filePath(QStringLiteral(INSTALLED_TRANSLATIONS));
}

} // namespace

PanelWindow::PanelWindow(const SimulatedReceiver& receiver, ReportSupervisor& supervisor, QSettings& settings,
                         const QString& schema, const QString& reportDirectory)
    : m_receiver(receiver)
    , m_settings(settings)
    , m_sSchema(schema)
    , m_pAskForComment(new QCheckBox)
    , m_pDirectory(new QLineEdit(QDir::toNativeSeparators(reportDirectory)))
    , m_pMissing(new QLabel)
{
    createMenus();
    createToolBar();
    statusBar()->addWidget(m_pMissing, 1);
    auto* const splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(createMeasurement());
    splitter->addWidget((new Supervision(supervisor, settings, *this))->GetPanel());
    splitter->setStretchFactor(1, 1);
    setCentralWidget(splitter);
    createReporting(); // the last for the keyboard, and so the one before the first
    resize((QSize(1200, 900) * logicalDpiX() / 96).boundedTo(screen()->availableSize() * 9 / 10));
}

void PanelWindow::UseReportDirectory(const QString& directory)
{
    m_pDirectory->setText(QDir::toNativeSeparators(directory));
    m_settings.setValue(QStringLiteral("reports"), directory);
    createReporting();
}

void PanelWindow::Speak(const QString& language)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const QString cataloguesOfQt = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    const QString cataloguesOfQt = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    TranslationCenter::Instance().Register(Context.chopped(1));
    TranslationCenter::Instance().InstallTranslators(locale, catalogues());
    delete qApp->findChild<QTranslator*>();
    auto* const textsOfQt = new QTranslator(qApp);
    if (textsOfQt->load(locale, QStringLiteral("qtbase_"), QString(), catalogues())
        || textsOfQt->load(locale, QStringLiteral("qtbase_"), QString(), cataloguesOfQt)) {
        QApplication::installTranslator(textsOfQt);
    }
}

void PanelWindow::createMenus()
{
    QMenu* const file = menuBar()->addMenu(QString());
    m_pMakeReport = file->addAction(QString(), this, [this] { m_pReporting->GetReportButton()->click(); });
    QAction* const quit = file->addAction(QString(), this, &PanelWindow::close);
    quit->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
    QMenu* const settings = menuBar()->addMenu(QString());
    QAction* const directory = settings->addAction(QString(), this, [this] {
        const QString chosen = QFileDialog::getExistingDirectory(this, tr("Report directory"), m_pDirectory->text());
        chosen.isEmpty() ? void() : UseReportDirectory(chosen);
    });
    createLanguageMenu(*settings->addMenu(QString()));
    say([=] {
        setWindowTitle(tr("Measurement Panel"));
        file->setTitle(tr("Fi&le"));
        const QKeySequence key(QStringLiteral("Shift+F10")); // which the button has itself
        m_pMakeReport->setText(tr("&Make a report") + QLatin1Char('\t') + key.toString(QKeySequence::NativeText));
        quit->setText(tr("&Quit"));
        settings->setTitle(tr("Setti&ngs"));
        directory->setText(tr("Choose the report &directory…"));
    });
}

void PanelWindow::createLanguageMenu(QMenu& menu)
{
    const QStringList files = QDir(catalogues()).entryList({Context + QStringLiteral("*.qm")});
    for (const QString& file : files) {
        const QString language = file.mid(Context.size()).chopped(3);
        const bool isEnglish = language == QLatin1String("en"); // that of the United States, Qt says
        const QString name = isEnglish ? QStringLiteral("English") : QLocale(language).nativeLanguageName();
        QAction* const action = menu.addAction(name, this, [this, language] {
            m_settings.setValue(QStringLiteral("language"), language);
            Speak(language);
        });
        action->setObjectName(QStringLiteral("language_") + language);
    }
    say([&menu] { menu.setTitle(tr("&Language")); });
}

void PanelWindow::createToolBar()
{
    auto* const caption = new QLabel;
    m_pToolBar = addToolBar(QString());
    m_pToolBar->setMovable(false);
    for (QWidget* const widget : std::initializer_list<QWidget*> {m_pAskForComment, caption, m_pDirectory}) {
        m_pToolBar->addWidget(widget);
    }
    caption->setBuddy(m_pDirectory);
    m_pDirectory->setReadOnly(true);
    m_pMissing->setObjectName(QStringLiteral("missing"));
    m_pDirectory->setObjectName(QStringLiteral("reportDirectory"));
    m_pAskForComment->setObjectName(QStringLiteral("askForComment"));
    m_pAskForComment->setChecked(m_settings.value(QStringLiteral("askForComment")).toBool());
    connect(m_pAskForComment, &QCheckBox::toggled, this, [this](bool isWanted) {
        m_pReporting->SetShowCommentDialog(isWanted);
        m_settings.setValue(QStringLiteral("askForComment"), isWanted);
    });
    say([this, caption] {
        m_pToolBar->setWindowTitle(tr("Report"));
        m_pAskForComment->setText(tr("&Ask for a comment"));
        caption->setText(tr("Reports &in:"));
    });
}

/// In place of the one before: a report widget keeps its directory for life.
void PanelWindow::createReporting()
{
    delete m_pReportingAction; // with the report widget
    m_pReporting = new VCReporting(m_sSchema, m_pDirectory->text(), m_pToolBar, true, "toReport", true, QPixmap());
    m_pReporting->SetShowCommentDialog(m_pAskForComment->isChecked());
    m_pReportingAction = m_pToolBar->insertWidget(m_pToolBar->actions().constFirst(), m_pReporting);
    connect(m_pReporting, &VCReporting::PrepareToReport, this,
            [this] { registerReportItems(*m_pReporting, m_receiver, ++m_iReports); });
    connect(m_pReporting, &VCReporting::ReportDirAndSchemaAvailable, this, &PanelWindow::showAvailability);
    m_pReporting->EnableReportButton(true); // looks again: at first nobody could listen
}

QWidget* PanelWindow::createMeasurement()
{
    auto* const box = new QWidget;
    auto* const values = new QLabel;
    auto* const layout = new QVBoxLayout(box);
    layout->addWidget(values);
    layout->addWidget(new LevelTrace(m_receiver), 1);
    values->setObjectName(QStringLiteral("values"));
    values->setWordWrap(true);
    const auto show = [this, values] {
        const QString azimuth = m_receiver.TextOf("DirectionFinder/Azimuth");
        values->setText(tr("<b>%1</b>, bandwidth %2, level <b>%3</b>, %4")
                            .arg(m_receiver.TextOf("Receiver/Frequency"), m_receiver.TextOf("Receiver/Bandwidth"),
                                 m_receiver.TextOf("Receiver/Level"),
                                 m_receiver.HasBearing() ? tr("azimuth %1").arg(azimuth) : tr("no bearing")));
    };
    connect(&m_receiver, &SimulatedReceiver::Measured, values, show);
    say(show);
    return box;
}

/// Now, and again in each language.
void PanelWindow::say(const std::function<void()>& text)
{
    text();
    m_texts.push_back(text);
}

void PanelWindow::showAvailability(bool isAvailable)
{
    const QString missing = QFile::exists(m_sSchema) ? m_pDirectory->text() : QDir::toNativeSeparators(m_sSchema);
    m_pMissing->setText(isAvailable ? QString() : tr("No report can be made: %1 is missing.").arg(missing));
    m_pMakeReport->setEnabled(isAvailable);
}

void PanelWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        for (const std::function<void()>& text : m_texts) {
            text();
        }
    }
    if (m_pReporting) {
        m_pReporting->EnableReportButton(true); // who comes back to the window may have brought back what was missing
    }
    QMainWindow::changeEvent(event);
}
