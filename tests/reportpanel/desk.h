#ifndef XMLHELPER_TESTS_DESK_H
#define XMLHELPER_TESTS_DESK_H

#include <memory>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QString>
#include <QTableView>
#include <QTimer>

#include <xmlhelperreportwidgets/reportpanel.h>

#include "station.h"

constexpr QSize Smallest(800, 560);

/// A window with a panel, on the supervisor of a station.
class Desk
{
public:
    Desk();
    ~Desk();

    /// A panel in place of the one before; active.
    void Renew();

    template <typename Widget> Widget* Find(const char* name) const
    {
        return panel->findChild<Widget*>(QLatin1String(name));
    }
    QString Text(const char* label) const { return Find<QLabel>(label)->text(); }
    QTableView* List() const { return Find<QTableView>("reportList"); }
    QString Cell(int row, int column) const { return List()->model()->index(row, column).data().toString(); }
    QString Page() const;
    QString Xml() const;
    QPushButton* Button(const char* name) const { return Find<QPushButton>(name); }
    bool IsOffered(const char* button) const { return Button(button)->isVisible() && Button(button)->isEnabled(); }
    void Press(const char* button) const;
    /// Clicks into a row of the list.
    void Click(int row) const;

    QString MissingFolder() const { return station.PathOf(QStringLiteral("missing")); }
    QString PathOf(const char* name) const { return station.PathOf(QLatin1String(name)); }

    quint64 Write(const char* name, const QByteArray& content = "<report/>") const;
    quint64 Lose(const char* name) const;
    bool Becomes(quint64 report, const QString& sign) const;

    Station station;
    std::unique_ptr<ReportPanel> panel;
    QObject context; ///< for connections that end with the desk
};

/// Does what brings up a question, which keeps the program inside of it, and answers that question. Gives whether it
/// came.
template <typename Question, typename Action, typename Answer> bool isAsked(Action action, Answer answer)
{
    bool isIt = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&timer, &isIt, &answer] {
        if (auto* const question = qobject_cast<Question*>(QApplication::activeModalWidget())) {
            timer.stop();
            isIt = true;
            answer(*question);
        }
    });
    timer.start(10);
    action();
    return isIt;
}

/// Presses a button, and gives the dialog that comes up the name of a file.
/// @param kind  which of the kinds of file that are offered is chosen first
bool isFileChosen(const Desk& desk, const char* button, const QString& fileName, int kind = 0);

/// Presses the buttons of that role.
void press(QMessageBox& question, QMessageBox::ButtonRole role);

QString signOf(ReportSupervisor::State state, const QString& schemaFault = QString());

#endif
