#include <QApplication>
#include <QCloseEvent>
#include <QMainWindow>

#include <xmlhelperreports/reportfiller.h>
#include <xmlhelperreportwidgets/reportpanel.h>

/// A window that is closed only when no report is lost by it, or the operator wants so.
class Window : public QMainWindow
{
public:
    explicit Window(ReportSupervisor& supervisor)
        : m_pPanel(new ReportPanel(supervisor, this))
    {
        setWindowTitle(QStringLiteral("Reports"));
        setCentralWidget(m_pPanel);
    }

protected:
    void closeEvent(QCloseEvent* event) override { event->setAccepted(m_pPanel->MayQuit()); }

private:
    ReportPanel* m_pPanel;
};

/// Makes a report of one value, and shows what becomes of it and of what earlier runs could not write.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    ReportSupervisor supervisor;
    supervisor.SetValidator(&ReportPage::LacksOf);
    Window window(supervisor);
    window.show();
    supervisor.TakeOverEarlier();
    ReportFiller filler;
    filler.Add(QStringLiteral("Station"), QStringLiteral("Tower"));
    filler.Fill(QApplication::arguments().value(1), QApplication::arguments().value(2));
    return QApplication::exec();
}
