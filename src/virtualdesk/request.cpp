#include "virtualdesk/request.h"

#include <iterator>

#include "virtualdesk/marked.h"

namespace virtualdesk {

namespace {

constexpr const char *kOutcomes[] = {NAME("ok"),      NAME("adjusted"), NAME("garbled"), NAME("unexpected"),
                                     NAME("refused"), NAME("lost"),     NAME("deaf"),    NAME("unplugged")};
static_assert(std::size(kOutcomes) == static_cast<std::size_t>(Outcome::Unplugged) + 1);

} // namespace

const char *wordOf(Outcome outcome)
{
    return kOutcomes[static_cast<std::size_t>(outcome)];
}

} // namespace virtualdesk
