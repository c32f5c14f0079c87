#ifndef MEASUREMENTPANEL_OPERATOR_H
#define MEASUREMENTPANEL_OPERATOR_H

#include <optional>

#include <QObject>
#include <QString>

class PanelWindow;
class QWidget;
class SimulatedReceiver;

/// The robot that works on the panel like a human operator: clicks with the mouse on what the window shows, types
/// comments into the dialog, and looks whether the reports have arrived.
///
/// Between two presses it lets the receiver finish a channel, so every report has a signal of its own. Nothing else
/// should drive the receiver meanwhile. Window and receiver are not owned.
class Operator : public QObject
{
    Q_OBJECT

public:
    struct Orders
    {
        int presses = 1;
        /// Asks for the comment dialog and answers it: with this comment, or with "No Comment" when it is empty.
        std::optional<QString> comment;
        /// Where to save the picture of the window, and of the dialog beside it ("-dialog" before the suffix); empty:
        /// nowhere.
        QString screenshot;
    };

    Operator(PanelWindow& window, SimulatedReceiver& receiver, const Orders& orders);
    ~Operator() override;

    /// Presses the button as often as ordered, and prints the path of each report. Stops, with a message on stderr, at
    /// the first one that does not arrive, or is empty.
    /// @return whether everything ordered has been done
    bool Work();

private:
    Q_DISABLE_COPY(Operator)

    bool makeReport();
    bool answerDialog();
    bool saveScreenshot(QWidget& widget, const QString& path);
    bool complain(const QString& complaint) const;

    PanelWindow& m_window;
    SimulatedReceiver& m_receiver;
    const Orders m_orders;
    qint64 m_iLastPress = 0;
    QString m_sWritten; ///< the report that has arrived since the last press
    QString m_sFailure; ///< what the window has said since the last press
};

#endif
