// A program of ours in which a failure escapes an event, and nobody sits at the screen.

#include <QTimer>

#include "common/failure.h"
#include "windows/application.h"

int main(int argc, char** argv) {
    vigrel::cApplication application(argc, argv);
    application.SetFailureBoxTime(1500);
    QTimer::singleShot(0, [] { throw vigrel::cFailure(vigrel::eFailure::Overflow, "an event failed"); });
    return vigrel::cApplication::exec();
}
