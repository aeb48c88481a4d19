#pragma once

#include <QApplication>

// The desktop program's application object. It is the last safety net for the database's failures: one
// that a screen did not catch is shown, the one way messages are shown, instead of leaving the event
// handler and ending the program. Screens that must react to a failure catch it themselves.
class clsVowrenApplication : public QApplication {
public:
    clsVowrenApplication(int& argc, char** argv);
    bool notify(QObject* receiver, QEvent* event) override;
};
