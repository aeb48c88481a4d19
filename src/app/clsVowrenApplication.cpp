#include "app/clsVowrenApplication.h"

#include "core/RecordIO.h"

clsVowrenApplication::clsVowrenApplication(int& argc, char** argv) : QApplication(argc, argv) {}

bool clsVowrenApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const clsDbError& e) {
        RecordIO::Report(e);
        return false;
    }
}
