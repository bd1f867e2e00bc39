#include "virtualdesk/programscript.h"

namespace virtualdesk {

namespace {

constexpr const char *kShapes[] = {"normal", "maximised", "minimised", "full_screen", "hidden"};

ApplicationWindow readWindow(ScriptObject object)
{
    ApplicationWindow window;
    int rect[] = {window.rect.x(), window.rect.y(), window.rect.width(), window.rect.height()};
    object.numbers("rect", rect);
    window.rect = QRect(rect[0], rect[1], rect[2], rect[3]);
    int least[] = {window.least.width(), window.least.height()};
    object.numbers("least", least);
    window.least = QSize(least[0], least[1]);
    object.number("frame", window.frame, 0, 100);
    object.choice("shape", window.shape, kShapes);
    if (object.has("class"))
        window.className = object.take("class").toString();
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
            program.window = readWindow(object.inside("window"));
        object.finish();
        programs.push_back(program);
    });
    return programs;
}

} // namespace virtualdesk
