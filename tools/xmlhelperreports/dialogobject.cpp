#include "dialogobject_p.h"

#include <QDialog>

QObject* objectOf(QDialog* dialog)
{
    return dialog;
}
