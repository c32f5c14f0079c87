#include "panelscene.h"

#include <QtTest>

#include <algorithm>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTextEdit>
#include <QThread>
#include <QToolButton>

#include <xmlhelper/reportnews.h>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QString readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QList<QWidget*> openDialogs()
{
    QList<QWidget*> open;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        if (window->isVisible() && window->objectName() == QLatin1String("ToReportCommentDialog")) {
            open.append(window);
        }
    }
    return open;
}

void forgetDialogs()
{
    const QList<QWidget*> open = openDialogs();
    for (QWidget* const dialog : open) {
        dialog->hide();
    }
}

void typeComment(QWidget& dialog, const QString& comment)
{
    QTest::keyClicks(dialog.findChild<QTextEdit*>(QStringLiteral("m_pTextEdit")), comment);
}

#ifdef Q_OS_UNIX

namespace {

bool setLongestFile(rlim_t size)
{
    rlimit limit {};
    if (getrlimit(RLIMIT_FSIZE, &limit) != 0) {
        return false;
    }
    limit.rlim_cur = std::min(size, limit.rlim_max);
    return setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

} // namespace

/// The signal would end the process; without it, writing fails.
FullDisk::FullDisk()
{
    std::signal(SIGXFSZ, SIG_IGN);
    setLongestFile(0);
}

FullDisk::~FullDisk()
{
    setLongestFile(RLIM_INFINITY);
    std::signal(SIGXFSZ, SIG_DFL);
}

bool FullDisk::IsPossible()
{
    return true;
}

#else

FullDisk::FullDisk() = default;
FullDisk::~FullDisk() = default;

bool FullDisk::IsPossible()
{
    return false;
}

#endif

Answer::Answer(const QString& button)
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, button] {
        const auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!question) {
            return;
        }
        const QList<QAbstractButton*> buttons = question->buttons();
        for (QAbstractButton* const offered : buttons) {
            if (offered->text().remove(QLatin1Char('&')) == button) {
                ++m_iQuestions;
                QTest::mouseClick(offered, Qt::LeftButton);
                return;
            }
        }
    });
    m_timer.start(0);
}

PanelScene::PanelScene()
    : m_settings(m_folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat)
{
    RestoreReports();
    RestoreSchema();
    m_supervisor.SetEmergencyFolder(m_folder.filePath(QStringLiteral("unsaved")));
    m_supervisor.SetPauses(3600000, 3600000); // nothing is tried by itself
    QObject::connect(&ReportNews::Instance(), &ReportNews::CommentAsked, &m_receiver,
                     [this](quint64, QDialog* dialog) { m_pDialog = dialog; });
    m_window = std::make_unique<PanelWindow>(m_receiver, m_supervisor, m_settings, Schema(), Reports());
    m_window->show();
}

PanelScene::~PanelScene()
{
    forgetDialogs();
}

QString PanelScene::LabelText(const char* name) const
{
    return Find<QLabel>(name)->text();
}

int PanelScene::Rows() const
{
    return Find<QTableView>("reportList")->model()->rowCount();
}

QString PanelScene::OnlyReport() const
{
    const QStringList written = Written();
    return written.size() == 1 ? QDir(Reports()).filePath(written.constFirst()) : QString();
}

void PanelScene::Press()
{
    QThread::msleep(1);
    QTest::mouseClick(&Button(), Qt::LeftButton);
}

QDialog* PanelScene::PressWithComment()
{
    Find<QCheckBox>("askForComment")->setChecked(true);
    m_pDialog = nullptr;
    Press();
    return m_pDialog;
}

QStringList PanelScene::Written() const
{
    return QDir(Reports()).entryList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name);
}

bool PanelScene::RemoveReports()
{
    return QDir(Reports()).removeRecursively();
}

bool PanelScene::RestoreReports()
{
    return QDir().mkpath(Reports());
}

bool PanelScene::RemoveSchema()
{
    return QDir(m_folder.filePath(QStringLiteral("schemas"))).removeRecursively();
}

bool PanelScene::RestoreSchema()
{
    const QDir source(QStringLiteral(MEASUREMENTPANEL_SOURCES));
    const QDir target(m_folder.filePath(QStringLiteral("schemas")));
    return QDir().mkpath(target.path())
        && QFile::copy(source.filePath(QStringLiteral("measurementtypes.xsd")),
                       target.filePath(QStringLiteral("measurementtypes.xsd")))
        && QFile::copy(source.filePath(QStringLiteral("measurementreport.xsd")), Schema());
}
