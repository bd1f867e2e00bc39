#include "loading.h"

#include <algorithm>

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcessEnvironment>

#include "platform/desk.h"

namespace {

// A whole name, or the beginning of many when it ends in "_". What scales the window or only logs may stay.
constexpr const char *kVariables[] = {
    "QT_PLUGIN_PATH", "QT_QPA_",    "QT_STYLE_OVERRIDE", "QT_IM_MODULE",  "QT_IM_MODULES",
    "QT_OPENGL",      "QT_OPENGL_", "QT_ANGLE_",         "QT_VULKAN_LIB", "QT_LOAD_TESTABILITY",
};

struct Option
{
    const char *name; // behind one dash or two
    bool hasValue;    // behind "=", or as the next argument
};
constexpr Option kOptions[] = {
    {"platform", true}, {"platformpluginpath", true}, {"platformtheme", true}, {"plugin", true},
    {"style", true},    {"stylesheet", true},         {"testability", false},
};

/// How many arguments the option takes that begins with this one: 0 when it is none of ours.
int argumentsOf(QByteArray argument)
{
    if (!argument.startsWith('-'))
        return 0;
    argument.remove(0, argument.startsWith("--") ? 2 : 1);
    const QByteArray name = argument.split('=').first();
    const auto *option = std::find_if(std::begin(kOptions), std::end(kOptions),
                                      [&name](const Option &each) { return name == each.name; });
    if (option == std::end(kOptions))
        return 0;
    return option->hasValue && name.size() == argument.size() ? 2 : 1;
}

} // namespace

bool steersLoading(const QString &variable)
{
    return std::any_of(std::begin(kVariables), std::end(kVariables), [&variable](const char *name) {
        const QLatin1String known(name);
        return known.endsWith(QLatin1Char('_')) ? variable.startsWith(known, Qt::CaseInsensitive)
                                                : variable.compare(known, Qt::CaseInsensitive) == 0;
    });
}

void dropLoadingOptions(int &argc, char **argv)
{
    int kept = std::min(argc, 1); // the program itself
    for (int i = kept; i < argc;) {
        if (const int taken = argumentsOf(argv[i]))
            i += taken;
        else
            argv[kept++] = argv[i++];
    }
    argc = kept;
    argv[argc] = nullptr;
}

void hardenLoading(int &argc, char **argv)
{
    platform::Process &process = platform::desk().process();
    if (!process.restrictLibraries())
        return;
    for (const QString &variable : QProcessEnvironment::systemEnvironment().keys()) {
        if (steersLoading(variable))
            qunsetenv(variable.toLocal8Bit().constData());
    }
    dropLoadingOptions(argc, argv);
    QCoreApplication::setLibraryPaths({QFileInfo(process.ownFile()).absolutePath()});
}
