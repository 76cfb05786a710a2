// headless.cpp -- fonts, pictures and the PDF writer, with no screen and no theme.
#include "painter/headless.h"

#include "session/files.h"
#include "session/session.h"

#include <QDate>
#include <QGuiApplication>
#include <QHashFunctions>
#include <QLocale>
#include <QStandardPaths>

#include <cstdio>
#include <cstdlib>

// What the library has to tell is about screens and themes, of no use here; only its last words are passed on.
static void Silence(QtMsgType type, const QMessageLogContext&, const QString& words)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(words));
}

void StartWithoutScreen()
{
    static bool started = false;
    if (started)
        return;
    started = true;
    qInstallMessageHandler(Silence);
    // The user's desktop theme would be loaded, and might look for the display.
    qunsetenv("QT_QPA_PLATFORMTHEME");
    qunsetenv("QT_STYLE_OVERRIDE");
    qunsetenv("QT_SCALE_FACTOR");
    // The writer's order of fonts hangs on it, and the same pages shall give the same file.
    QHashSeed::setDeterministicGlobalSeed();
    // Without a session of the desktop it would leave a folder of its own behind.
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(NativePath(RunFolder)));
    static char name[] = "stratavue-batch", option[] = "-platform", platform[] = "offscreen";
    static char* words[] = {name, option, platform, nullptr};
    static int count = 3;
    // Not given back: the process ends with its last page, and the faces of the painter live as long.
    static QGuiApplication* application = new QGuiApplication(count, words);
    static_cast<void>(application);
}

Text ShortDateOfLocale()
{
    return FromUtf8(QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString());
}

Text UserDataFolder()
{
    return FromUtf8(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString());
}
