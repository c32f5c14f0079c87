#include <basicvaluewidgets/vcbutton.h>
#include <QEvent>
#include <QIcon>
#include <QKeySequence>
#include <QPixmap>

namespace {

QString bracketedEnd(const QString& text)
{
    const auto open = text.lastIndexOf(QLatin1Char('('));
    if (open < 0 || !text.endsWith(QLatin1Char(')'))) {
        return {};
    }
    return text.mid(open + 1).chopped(1);
}

/// Qt takes any text for a key sequence; what it does not understand becomes an unknown key in it.
bool isUnderstood(const QKeySequence& sequence)
{
    for (int i = 0; i < sequence.count(); ++i) {
        if (QKeySequence(sequence[static_cast<uint>(i)]) == QKeySequence(Qt::Key_unknown)) {
            return false;
        }
    }
    return true;
}

/// The key sequence in brackets at the end of @p text; empty when there is none.
QKeySequence shortcutIn(const QString& text)
{
    const QKeySequence shortcut = QKeySequence::fromString(bracketedEnd(text), QKeySequence::PortableText);
    return isUnderstood(shortcut) ? shortcut : QKeySequence();
}

/// The first line of @p toolTip, without its shortcut.
QString nameIn(const QString& toolTip)
{
    const QString firstLine = toolTip.section(QLatin1Char('\n'), 0, 0);
    const bool hasShortcut = !shortcutIn(firstLine).isEmpty();
    return hasShortcut ? firstLine.left(firstLine.lastIndexOf(QLatin1Char('('))).trimmed() : firstLine;
}

} // namespace

VCButton::VCButton(QWidget* parent, const QString& text, bool /*recordUndo*/)
    : QToolButton(parent)
{
    setToolTip(text);
    if (const QKeySequence shortcut = shortcutIn(text); !shortcut.isEmpty()) {
        setShortcut(shortcut);
    }
}

VCButton::~VCButton() = default;

void VCButton::SetDefaultPicture(const char* const* xpm)
{
    setIcon(xpm ? QIcon(QPixmap(xpm)) : QIcon());
}

void VCButton::setEnabled(bool enabled)
{
    QToolButton::setEnabled(enabled);
}

bool VCButton::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTipChange) {
        setAccessibleName(nameIn(toolTip()));
    }
    return QToolButton::event(event);
}
