#include <basicvaluewidgets/vcbutton.h>
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

} // namespace

VCButton::VCButton(QWidget* parent, const QString& text, bool /*recordUndo*/)
    : QToolButton(parent)
{
    setToolTip(text);

    const QKeySequence shortcut = QKeySequence::fromString(bracketedEnd(text), QKeySequence::PortableText);
    if (isUnderstood(shortcut)) {
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
