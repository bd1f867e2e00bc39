#include "ddc_protocol/sceneblock.h"
#include "ddc_protocol/commandtable.h"

#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/transport.h"

bool readSceneBlockOnce(int mode)
{
    const auto lock = lockTransport(); // nobody else may fill tableBuffer before it is copied
    const std::uint8_t *bytes =
        readCommandTableOnce(readRow(Command::SceneMode), static_cast<std::uint16_t>(mode), kSceneBlockSize);
    if (!bytes || tableReadLength != kSceneBlockSize)
        return false;
    deviceState.storeSceneBlock(mode, std::span<const std::uint8_t, kSceneBlockSize>(bytes, kSceneBlockSize));
    return true;
}
