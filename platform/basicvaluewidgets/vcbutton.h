#ifndef BASICVALUEWIDGETS_VCBUTTON_H
#define BASICVALUEWIDGETS_VCBUTTON_H

#include <basicvaluewidgets/basicvaluewidgetsexport.h>
#include <guibase/undorecordingcontrolbase.h>
#include <QToolButton>

/// A tool button that shows a picture and explains itself in its tool tip.
///
/// The first line of the tool tip is the button's name, with its shortcut in brackets; lines behind it may explain
/// more. Screen readers are told the name without the shortcut, whoever changes the tool tip.
class BASICVALUEWIDGETS_EXPORT VCButton : public QToolButton, public UndoRecordingControlBase
{
    Q_OBJECT

public:
    /// @param text        the tool tip, whole. A key sequence in brackets at its end, as QKeySequence::PortableText
    ///                    writes it, is bound as shortcut: "To Report (Shift+F10)". Brackets with anything else in
    ///                    them bind nothing.
    /// @param recordUndo  accepted for the suite's button; there is nothing here that records
    VCButton(QWidget* parent, const QString& text, bool recordUndo);
    ~VCButton() override;

    /// Sets the icon from the lines of an XPM image; null takes the icon away.
    void SetDefaultPicture(const char* const* xpm);

public Q_SLOTS:
    /// Hides the slot of QWidget, which is not virtual, so that buttons derived from this one can have a say. A call
    /// through a QWidget pointer passes it by.
    virtual void setEnabled(bool enabled);

protected:
    bool event(QEvent* event) override;

private:
    Q_DISABLE_COPY(VCButton)
};

#endif
