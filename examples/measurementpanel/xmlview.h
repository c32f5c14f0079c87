#ifndef MEASUREMENTPANEL_XMLVIEW_H
#define MEASUREMENTPANEL_XMLVIEW_H

#include <QPlainTextEdit>

/// Shows an XML file as text, coloured, to read only.
class XmlView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit XmlView(QWidget* parent = nullptr);
    ~XmlView() override;

    /// Shows the file as it is now; nothing when it cannot be read.
    void ShowFile(const QString& path);

private:
    Q_DISABLE_COPY(XmlView)
};

#endif
