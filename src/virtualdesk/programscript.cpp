#include "virtualdesk/programscript.h"

namespace virtualdesk {

namespace {

constexpr const char *kShapes[] = {"normal", "maximised", "minimised", "full_screen"};

/// A list of so many whole numbers; without the key those that were there.
QList<int> numbers(ScriptObject &object, const char *key, const QList<int> &usual)
{
    const bool given = object.has(key);
    QList<int> read;
    for (const QJsonValue &value : object.list(key))
        read.append(value.toInt());
    if (given && read.size() != usual.size())
        object.fail(QStringLiteral("\"%1\" must be %2 numbers").arg(QLatin1String(key)).arg(usual.size()));
    return given && read.size() == usual.size() ? read : usual;
}

ApplicationWindow readWindow(ScriptObject object)
{
    ApplicationWindow window;
    const QRect usual = window.rect;
    const QList<int> rect = numbers(object, "rect", {usual.x(), usual.y(), usual.width(), usual.height()});
    window.rect = QRect(rect[0], rect[1], rect[2], rect[3]);
    const QList<int> least = numbers(object, "least", {0, 0});
    window.least = QSize(least[0], least[1]);
    object.number("frame", window.frame, 0, 100);
    object.choice("shape", window.shape, kShapes);
    object.flag("sizable", window.isSizable);
    object.flag("hung", window.isHung);
    object.flag("more_rights", window.hasMoreRights);
    object.finish();
    return window;
}

} // namespace

std::vector<Application> readPrograms(ScriptObject &root)
{
    std::vector<Application> programs;
    root.each("programs", [&programs](ScriptObject object) {
        Application program;
        program.path = object.take("path").toString();
        if (program.path.isEmpty())
            object.fail(QStringLiteral("a program needs its \"path\""));
        object.flag("protected", program.isProtected);
        if (object.has("window"))
            program.window = readWindow(object.inside(object.take("window")));
        object.finish();
        programs.push_back(program);
    });
    return programs;
}

} // namespace virtualdesk
