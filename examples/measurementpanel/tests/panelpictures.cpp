#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QTextStream>
#include <QToolButton>
#include <QtTest>

#include "panelscene.h"

// Takes the pictures of the operator's guide: the panel in each of its states.
//
// usage: panelpictures light|dark FOLDER
//
// With QT_SCALE_FACTOR=2 they have twice the dots. scripts/make-pictures runs it for all four and puts them together.

namespace {

/// What desktops with a dark theme give to the style.
QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x38, 0x3D), QColor(0x2B, 0x2D, 0x31));
    palette.setColor(QPalette::Base, QColor(0x1E, 0x1F, 0x22));
    palette.setColor(QPalette::AlternateBase, QColor(0x2B, 0x2D, 0x31));
    palette.setColor(QPalette::Text, QColor(0xE6, 0xE6, 0xE6));
    palette.setColor(QPalette::WindowText, QColor(0xE6, 0xE6, 0xE6));
    palette.setColor(QPalette::ButtonText, QColor(0xE6, 0xE6, 0xE6));
    palette.setColor(QPalette::PlaceholderText, QColor(0xA0, 0xA0, 0xA0));
    palette.setColor(QPalette::ToolTipBase, QColor(0x2B, 0x2D, 0x31));
    palette.setColor(QPalette::ToolTipText, QColor(0xE6, 0xE6, 0xE6));
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x65, 0xCA));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(0x7D, 0x80, 0x85));
    }
    return palette;
}

class Camera
{
public:
    explicit Camera(const QDir& folder)
        : m_folder(folder)
    {
    }

    void Take(QWidget& widget, const QString& name)
    {
        QTest::qWait(150);
        m_isGood = widget.grab().save(m_folder.filePath(name + QStringLiteral(".png"))) && m_isGood;
    }
    bool IsGood() const { return m_isGood; }

private:
    QDir m_folder;
    bool m_isGood = true;
};

/// The question comes up inside of close(): the picture is taken while it is open.
void takeQuestion(PanelScene& scene, Camera& camera)
{
    QTimer::singleShot(300, &scene.Window(), [&camera] {
        auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        camera.Take(*question, QStringLiteral("quitting"));
        question->reject();
    });
    scene.Window().close();
}

void takeAll(Camera& camera)
{
    PanelScene scene;
    PanelWindow& window = scene.Window();
    window.resize(1100, 780);
    scene.Supervisor().SetPauses(60000, 60000);
    for (int channel = 0; channel < 9; ++channel) { // the trace has something to show
        scene.Receiver().MeasureNextChannel();
    }
    scene.Press();
    camera.Take(window, QStringLiteral("written"));

    QDialog* const dialog = scene.PressWithComment();
    typeComment(*dialog, QStringLiteral("Drifts and fades"));
    camera.Take(*dialog, QStringLiteral("dialog"));
    camera.Take(window, QStringLiteral("waiting"));
    takeQuestion(scene, camera);

    scene.RemoveReports();
    scene.Look();
    camera.Take(window, QStringLiteral("disabled"));
    QMetaObject::invokeMethod(dialog, "SlotSaveWithComment");
    camera.Take(window, QStringLiteral("directory-gone"));

    PanelWindow::Speak(QStringLiteral("de"));
    camera.Take(window, QStringLiteral("german"));
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3 || !QDir(arguments[2]).exists()) {
        QTextStream(stderr) << "usage: panelpictures light|dark FOLDER\n";
        return 2;
    }
    if (arguments[1] == QLatin1String("dark")) {
        QApplication::setPalette(darkPalette());
    }
    PanelWindow::Speak(QStringLiteral("en"));
    Camera camera {QDir(arguments[2])};
    takeAll(camera);
    return camera.IsGood() ? 0 : 1;
}
