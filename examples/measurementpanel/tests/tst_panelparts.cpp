#include <QtTest>

#include <algorithm>
#include <cmath>

#include <QDomDocument>
#include <QLabel>
#include <QTemporaryDir>
#include <QToolButton>

#include <xmlhelper/vcreporting.h>
#include <xmlhelperreportwidgets/elidedlabel_p.h>
#include <xmlhelperreportwidgets/panelcolours_p.h>

#include "buttonexplanation.h"
#include "findings.h"
#include "languages.h"
#ifdef MEASUREMENTPANEL_HAS_PLOT
#include "leveltrace.h"
#endif
#include "panelscene.h"
#include "panelsettings.h"
#include "reportitems.h"
#include "reportpicture.h"

/// The small parts of the panel, each by itself.
class TestPanelParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anExplanationStandsBelowTheToolTip();
    void anExplanationSurvivesAChangeOfTheToolTip();

    void aLongLineKeepsItsEnds();

    void settingsAreEmptyAtFirst();
    void reportsGoToTheDocumentsAtFirst();
    void settingsOutliveTheProgram();

    void englishIsAlwaysSpoken();
    void everyCatalogueIsOffered();
    void aLanguageWithoutCatalogueIsEnglish();
    void qtsQuestionsAreTranslated();

    void reportedValuesAreThoseOfTheReport();
    void theMarkerStandsOnWhatIsReported();
    void theSweepGoesThroughTheMeasuredLevel();
    void theSweepChangesNoMeasurement();

    void theDoctorsFirstFindingIsTaken();
    void findingsSpeakTheLanguageOfThePanel();
    void withoutADoctorNothingIsFound();

    void picturesComeInSeveralSizes();
    void coloursAreReadableOnTheirWindows_data();
    void coloursAreReadableOnTheirWindows();
};

namespace {

const QString translations = QStringLiteral(MEASUREMENTPANEL_TRANSLATIONS);

QPalette darkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x20, 0x20, 0x20));
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::ButtonText, Qt::white);
    return palette;
}

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// As the guidelines for accessible web content define it.
double contrast(const QColor& one, const QColor& other)
{
    const double lighter = std::max(luminance(one), luminance(other));
    const double darker = std::min(luminance(one), luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

/// A variable of the environment, as long as it lives.
class Environment
{
public:
    Environment(const char* name, const QByteArray& value)
        : m_name(name)
    {
        qputenv(m_name, value);
    }
    ~Environment() { m_wasSet ? qputenv(m_name, m_before) : qunsetenv(m_name); }

private:
    Q_DISABLE_COPY(Environment)

    const char* m_name;
    const bool m_wasSet = qEnvironmentVariableIsSet(m_name);
    const QByteArray m_before = qgetenv(m_name);
};

} // namespace

void TestPanelParts::anExplanationStandsBelowTheToolTip()
{
    QToolButton button;
    button.setToolTip(QStringLiteral("To Report"));
    ButtonExplanation explanation(button);
    explanation.Explain(QStringLiteral("It is missing."));
    QCOMPARE(button.toolTip(), QStringLiteral("To Report\nIt is missing."));
    explanation.Explain(QStringLiteral("Both are missing."));
    QCOMPARE(button.toolTip(), QStringLiteral("To Report\nBoth are missing."));
    explanation.Explain(QString());
    QCOMPARE(button.toolTip(), QStringLiteral("To Report"));
}

void TestPanelParts::anExplanationSurvivesAChangeOfTheToolTip()
{
    QToolButton button;
    button.setToolTip(QStringLiteral("To Report"));
    ButtonExplanation explanation(button);
    explanation.Explain(QStringLiteral("Es fehlt."));
    button.setToolTip(QStringLiteral("Bericht erstellen"));
    QCOMPARE(button.toolTip(), QStringLiteral("Bericht erstellen\nEs fehlt."));
    explanation.Explain(QString());
    QCOMPARE(button.toolTip(), QStringLiteral("Bericht erstellen"));
}

void TestPanelParts::aLongLineKeepsItsEnds()
{
    ElidedLabel label;
    label.setText(QStringLiteral("The report directory is missing:\n/a/long/way/to/the/reports"));
    label.resize(2000, 30);
    QCOMPARE(label.GetShownText(), QStringLiteral("The report directory is missing: /a/long/way/to/the/reports"));
    label.resize(label.fontMetrics().horizontalAdvance(label.GetShownText()) * 2 / 3, 30);
    QVERIFY(label.GetShownText().startsWith(QLatin1String("The ")));
    QVERIFY(label.GetShownText().endsWith(QLatin1String("reports")));
    QVERIFY(label.fontMetrics().horizontalAdvance(label.GetShownText()) <= label.width());
}

void TestPanelParts::settingsAreEmptyAtFirst()
{
    const QTemporaryDir folder;
    const PanelSettings settings(folder.filePath(QStringLiteral("settings.ini")));
    QCOMPARE(settings.GetSchema(), QString());
    QCOMPARE(settings.GetReportDirectory(), QString());
    QCOMPARE(settings.GetLanguage(), QString());
    QVERIFY(!settings.GetAskForComment());
}

void TestPanelParts::reportsGoToTheDocumentsAtFirst()
{
#ifdef Q_OS_WIN
    QSKIP("The documents lie where the user's account has them.");
#endif
    const QTemporaryDir home;
    const Environment own("HOME", QFile::encodeName(home.path()));
    const Environment none("XDG_CONFIG_HOME", QFile::encodeName(home.filePath(QStringLiteral("none"))));
    const QString directory = PanelSettings::DefaultReportDirectory();
    QCOMPARE(directory, home.filePath(QStringLiteral("Documents/Measurement Reports")));
    QVERIFY(QDir(directory).exists());
}

void TestPanelParts::settingsOutliveTheProgram()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("settings.ini"));
    {
        PanelSettings settings(file);
        settings.SetSchema(QStringLiteral("/a, b/ü.xsd"));
        settings.SetReportDirectory(QStringLiteral("/reports"));
        settings.SetLanguage(QStringLiteral("fr"));
        settings.SetAskForComment(true);
    }
    const PanelSettings settings(file);
    QCOMPARE(settings.GetSchema(), QStringLiteral("/a, b/ü.xsd"));
    QCOMPARE(settings.GetReportDirectory(), QStringLiteral("/reports"));
    QCOMPARE(settings.GetLanguage(), QStringLiteral("fr"));
    QVERIFY(settings.GetAskForComment());
}

void TestPanelParts::englishIsAlwaysSpoken()
{
    const QTemporaryDir empty;
    Languages languages(empty.path());
    QCOMPARE(languages.GetAvailable(), QStringList(QStringLiteral("en")));
    languages.Use(QStringLiteral("de"));
    QCOMPARE(languages.GetCurrent(), QStringLiteral("en"));
}

void TestPanelParts::everyCatalogueIsOffered()
{
    const QTemporaryDir folder;
    QVERIFY(writeFile(folder.filePath(QStringLiteral("MeasurementPanel_fr.qm")), "x"));
    QVERIFY(writeFile(folder.filePath(QStringLiteral("MeasurementPanel_de.qm")), "x"));
    QVERIFY(writeFile(folder.filePath(QStringLiteral("Other_es.qm")), "x"));
    const Languages languages(folder.path());
    QCOMPARE(languages.GetAvailable(),
             (QStringList {QStringLiteral("de"), QStringLiteral("en"), QStringLiteral("fr")}));
    QCOMPARE(Languages::NameOf(QStringLiteral("de")), QStringLiteral("Deutsch"));
    QCOMPARE(Languages::NameOf(QStringLiteral("en")), QStringLiteral("English"));
    QCOMPARE(Languages::NameOf(QStringLiteral("fr")), QStringLiteral("Français"));
}

void TestPanelParts::aLanguageWithoutCatalogueIsEnglish()
{
    Languages languages(translations);
    languages.Use(QStringLiteral("pl"));
    QCOMPARE(languages.GetCurrent(), QStringLiteral("en"));
}

void TestPanelParts::qtsQuestionsAreTranslated()
{
    Languages languages(translations);
    if (languages.GetAvailable().size() == 1) {
        QSKIP("Built without lrelease: there are no translations.");
    }
    languages.Use(QStringLiteral("de"));
    const QMessageBox question(QMessageBox::Warning, QString(), QString(), QMessageBox::Yes | QMessageBox::Cancel);
    QCOMPARE(question.button(QMessageBox::Yes)->text(), QStringLiteral("&Ja"));
    QCOMPARE(question.button(QMessageBox::Cancel)->text(), QStringLiteral("Abbrechen"));
    languages.Use(QStringLiteral("en"));
}

void TestPanelParts::reportedValuesAreThoseOfTheReport()
{
    PanelScene scene;
    scene.Press();
    QDomDocument report;
    QVERIFY(report.setContent(readFile(QDir(scene.Reports()).filePath(scene.Written().constFirst()))));
    const auto element = [&report](const char* name) {
        return report.documentElement().elementsByTagName(QLatin1String(name)).at(0).toElement();
    };
    QCOMPARE(reportedFrequency().text, element("Frequency").text());
    QCOMPARE(reportedFrequency().unit, element("Frequency").attribute(QStringLiteral("Unit")));
    QCOMPARE(reportedLevel().text, element("Level").text());
    QCOMPARE(reportedLevel().unit, element("Level").attribute(QStringLiteral("Unit")));
}

void TestPanelParts::theMarkerStandsOnWhatIsReported()
{
#ifdef MEASUREMENTPANEL_HAS_PLOT
    // Numbers keep their decimal point, whatever the system's language is.
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    const MeasurementTree tree;
    const SimulatedReceiver receiver(tree);
    PanelWindow window(tree, receiver, QStringLiteral("/a.xsd"), QStringLiteral("/reports"));
    const auto* const trace = window.findChild<LevelTrace*>();
    QVERIFY(trace);
    const ReportedValue frequency = reportedFrequency();
    const ReportedValue level = reportedLevel();
    QCOMPARE(trace->GetMarkerText(), QStringLiteral("98.5 MHz, %1 dBµV").arg(level.text));
    QCOMPARE(trace->GetMarkerPosition().x(), frequency.number);
    QCOMPARE(trace->GetMarkerPosition().y(), level.number);
    QLocale::setDefault(QLocale::c());
#else
    QSKIP("Built without plots.");
#endif
}

void TestPanelParts::theSweepGoesThroughTheMeasuredLevel()
{
    const MeasurementTree tree;
    SimulatedReceiver receiver(tree);
    for (int step = 0; step < 20; ++step) {
        const SimulatedReceiver::Spectrum& sweep = receiver.GetSpectrum();
        const auto middle = sweep.frequencies.size() / 2;
        QCOMPARE(sweep.levels.size(), sweep.frequencies.size());
        QVERIFY(std::is_sorted(sweep.frequencies.begin(), sweep.frequencies.end()));
        QCOMPARE(sweep.frequencies[middle], reportedFrequency().number * 1e6);
        QCOMPARE(sweep.levels[middle], reportedLevel().number);
        receiver.Step();
    }
}

void TestPanelParts::theSweepChangesNoMeasurement()
{
    const MeasurementTree tree;
    const SimulatedReceiver receiver(tree);
    const std::vector<double> first = receiver.GetSpectrum().levels;
    const QString level = reportedLevel().text;
    const SimulatedReceiver again(tree);
    QCOMPARE(again.GetSpectrum().levels, first);
    QCOMPARE(reportedLevel().text, level);
}

void TestPanelParts::theDoctorsFirstFindingIsTaken()
{
#ifndef Q_OS_UNIX
    QSKIP("The stand-in for the doctor is a script for a Unix shell.");
#endif
    // A doctor that finds two things, and knows the name of the file that it was given.
    const QTemporaryDir programs;
    const QString doctor = programs.filePath(QStringLiteral("xmlhelper-schema"));
    QVERIFY(writeFile(doctor,
                      "#!/bin/sh\n"
                      "[ \"$1 $2 $3\" = '--json -- /a b.xsd' ] || exit 1\n"
                      "echo '{\"findings\": [{\"what\": \"It names no type.\"}, {\"what\": \"More.\"}]}'\n"
                      "exit 2\n"));
    QVERIFY(QFile::setPermissions(doctor, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    const ProgramFolder folder(programs.path());
    QCOMPARE(firstFindingInSchema(QStringLiteral("/a b.xsd")), QStringLiteral("It names no type."));

    QVERIFY(writeFile(doctor, "#!/bin/sh\necho '{\"findings\": [], \"unreadable\": \"It is no XML.\"}'\n"));
    QCOMPARE(firstFindingInSchema(QStringLiteral("/a b.xsd")), QStringLiteral("It is no XML."));
    QVERIFY(writeFile(doctor, "#!/bin/sh\necho Nonsense\n"));
    QCOMPARE(firstFindingInSchema(QStringLiteral("/a b.xsd")), QString());
}

void TestPanelParts::findingsSpeakTheLanguageOfThePanel()
{
#ifndef Q_OS_UNIX
    QSKIP("The stand-in for the doctor is a script for a Unix shell.");
#endif
    Languages languages(translations);
    if (languages.GetAvailable().size() == 1) {
        QSKIP("Built without lrelease: there are no translations.");
    }
    const QTemporaryDir programs;
    const QString doctor = programs.filePath(QStringLiteral("xmlhelper-schema"));
    QVERIFY(writeFile(doctor, "#!/bin/sh\necho \"{\\\"unreadable\\\": \\\"$LANGUAGE\\\"}\"\n"));
    QVERIFY(QFile::setPermissions(doctor, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    const ProgramFolder folder(programs.path());

    languages.Use(QStringLiteral("de"));
    QCOMPARE(firstFindingInSchema(QStringLiteral("/a.xsd")), QStringLiteral("de"));
    if (areReportsChecked()) {
        QCOMPARE(firstFindingInReport(programs.filePath(QStringLiteral("nowhere.xml")), QString()),
                 QStringLiteral("Diese Datei gibt es nicht."));
    }
    languages.Use(QStringLiteral("en"));
    QCOMPARE(firstFindingInSchema(QStringLiteral("/a.xsd")), QStringLiteral("en"));
}

void TestPanelParts::withoutADoctorNothingIsFound()
{
    const QTemporaryDir empty;
    const ProgramFolder folder(empty.path());
    QCOMPARE(firstFindingInSchema(QStringLiteral("/a.xsd")), QString());
}

void TestPanelParts::picturesComeInSeveralSizes()
{
#ifdef MEASUREMENTPANEL_HAS_SVG
    for (const QPalette& palette : {QPalette(), darkPalette()}) {
        const QIcon picture = reportPicture(palette);
        QVERIFY(picture.availableSizes().size() >= 4);
        const QImage image = picture.pixmap(48, 48).toImage();
        // The left edge of the page, in the colour of texts on buttons.
        QCOMPARE(image.pixelColor(10, 24), palette.color(QPalette::ButtonText));
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    }
#else
    QVERIFY(reportPicture(QPalette()).isNull());
#endif
}

void TestPanelParts::coloursAreReadableOnTheirWindows_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << QPalette(QColor(0xEF, 0xEF, 0xEF));
    QTest::newRow("dark") << darkPalette();
}

void TestPanelParts::coloursAreReadableOnTheirWindows()
{
    constexpr double enoughForText = 4.5;
    QFETCH(QPalette, palette);
    const QColor window = palette.color(QPalette::Window);
    for (const QColor& colour : {goodColour(palette), badColour(palette), pendingColour(palette)}) {
        QVERIFY2(contrast(colour, window) >= enoughForText, qPrintable(colour.name()));
    }
}

QTEST_MAIN(TestPanelParts)

#include "tst_panelparts.moc"
