#ifndef EXAMPLES_BUTTON_SCREEN_H
#define EXAMPLES_BUTTON_SCREEN_H

#include <QMainWindow>
#include <QToolBar>

#include <xmlhelper/xmlhelper.h>

/// A measurement screen with the report button in its tool bar.
class Screen : public QMainWindow
{
public:
    Screen(const QString& schema, const QString& directory)
        : m_pToolBar(addToolBar(QStringLiteral("Report")))
        , m_pReporting(new VCReporting(schema, directory, m_pToolBar, true, "ToReport", false, QPixmap()))
    {
        m_pToolBar->addWidget(m_pReporting);
        // Each press asks for what is measured now.
        connect(m_pReporting, &VCReporting::PrepareToReport, this, &Screen::RegisterItems);
    }

private:
    void RegisterItems()
    {
        m_pReporting->ClearReportData();
        Register("Station", QStringLiteral("Tower"), QString());
        Register("Frequency", QStringLiteral("98500000"), QStringLiteral("Hz"));
        Register("Level", QStringLiteral("-42.5"), QString());
    }

    /// An item: the element's name, no value of the tree but a fixed text, once, divided by 10 to the power of 0.
    void Register(const char* element, const QString& text, const QString& unit)
    {
        m_pReporting->AddReportData(QLatin1String(element), QString(), text, 1, QString(), 0, unit);
    }

    QToolBar* m_pToolBar;
    VCReporting* m_pReporting; ///< the tool bar's
};

#endif
