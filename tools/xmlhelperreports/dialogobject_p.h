#ifndef XMLHELPERREPORTS_DIALOGOBJECT_P_H
#define XMLHELPERREPORTS_DIALOGOBJECT_P_H

class QDialog;
class QObject;

/// The object that a dialog is. A source of its own knows that, so that the others do not need the library of dialogs.
QObject* objectOf(QDialog* dialog);

#endif
