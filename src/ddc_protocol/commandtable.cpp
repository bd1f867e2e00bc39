#include "ddc_protocol/commandtable.h"

namespace {

struct CodeRange
{
    int first;
    int last;
};

// Every code that the monitor understands, in rising order; rows follow this order.
constexpr CodeRange kCodeRanges[] = {
    {0x01, 0x0E}, {0x10, 0x10}, {0x12, 0x12}, {0x14, 0x1E}, {0x22, 0x22}, {0x24, 0x24}, {0x26, 0x26},
    {0x30, 0x4D}, {0x50, 0x57}, {0x59, 0x6A}, {0x70, 0x8D}, {0x9B, 0xA0}, {0xC0, 0xC8}, {0xCC, 0xCC},
    {0xD0, 0xDA}, {0xE0, 0xE1}, {0xE3, 0xF2}, {0xF6, 0xFB}, {0xFD, 0xFD},
};

constexpr std::uint8_t kWriteOperation = 0x03;
constexpr std::uint8_t kReadOperation = 0x01;

// The read row of 0x6A carries the write operation. The operation byte never reaches the wire, and the table is data
// that the monitor's maker settled, so it stays.
constexpr int kIrregularRow = 171;

constexpr int countCodes()
{
    int count = 0;
    for (const CodeRange &range : kCodeRanges)
        count += range.last - range.first + 1;
    return count;
}
static_assert(countCodes() == kCommandCodes);

constexpr auto buildTable()
{
    std::array<CommandRow, kCommandRows> table{};
    std::size_t row = 0;
    for (const CodeRange &range : kCodeRanges) {
        for (int code = range.first; code <= range.last; ++code) {
            for (const std::uint8_t operation : {kWriteOperation, kReadOperation})
                table[row++] = {0x6E, 0x51, 0x84, kVendorCode, operation, static_cast<std::uint8_t>(code)};
        }
    }
    table[kIrregularRow][4] = kWriteOperation;
    return table;
}

constexpr auto buildPlaces()
{
    std::array<std::int16_t, 256> places{};
    places.fill(-1);
    std::int16_t place = 0;
    for (const CodeRange &range : kCodeRanges) {
        for (int code = range.first; code <= range.last; ++code)
            places[static_cast<std::size_t>(code)] = place++;
    }
    return places;
}

constexpr std::array<std::int16_t, 256> kPlaces = buildPlaces();

} // namespace

constinit const std::array<CommandRow, kCommandRows> commandTable = buildTable();

int commandPlace(std::uint8_t code)
{
    return kPlaces[code];
}

COMMAND_set_Type writeRow(Command command)
{
    return COMMAND_set_Type(2 * commandPlace(static_cast<std::uint8_t>(command)));
}

COMMAND_set_Type readRow(Command command)
{
    return COMMAND_set_Type(2 * commandPlace(static_cast<std::uint8_t>(command)) + 1);
}

std::uint8_t commandCode(COMMAND_set_Type row)
{
    return commandTable[static_cast<std::size_t>(row)][5];
}
