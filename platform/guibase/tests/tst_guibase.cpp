#include <guibase/undorecordingcontrolbase.h>
#include <memory>
#include <QtTest>

namespace {

class Control
{
public:
    virtual ~Control() = default;
};

class UndoableControl : public Control, public UndoRecordingControlBase
{
public:
    explicit UndoableControl(bool* deleted)
        : m_deleted(deleted)
    {
    }
    ~UndoableControl() override { *m_deleted = true; }

private:
    bool* m_deleted;
};

} // namespace

class TestGuiBase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aControlIsFoundAndDeletedThroughTheBase();
};

void TestGuiBase::aControlIsFoundAndDeletedThroughTheBase()
{
    bool deleted = false;
    Control* control = new UndoableControl(&deleted);
    std::unique_ptr<UndoRecordingControlBase> base(dynamic_cast<UndoRecordingControlBase*>(control));
    QVERIFY(base);

    base.reset();
    QVERIFY(deleted);
}

QTEST_GUILESS_MAIN(TestGuiBase)

#include "tst_guibase.moc"
