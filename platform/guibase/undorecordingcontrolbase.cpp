#include <guibase/undorecordingcontrolbase.h>

UndoRecordingControlBase::~UndoRecordingControlBase() = default;
