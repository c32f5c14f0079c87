#ifndef GUIBASE_UNDORECORDINGCONTROLBASE_H
#define GUIBASE_UNDORECORDINGCONTROLBASE_H

#include <guibase/guibaseexport.h>

/// The base of controls whose use can be recorded for undo. The stand-in records nothing: it gives such controls a
/// common base that they can be found and deleted through.
class GUIBASE_EXPORT UndoRecordingControlBase
{
public:
    virtual ~UndoRecordingControlBase();
};

#endif
