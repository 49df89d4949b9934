// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {

const std::vector<Call> kPowerCalls = {
    {CALL(setPower(true)), "05 01", setting("06")},
    {CALL(setPower(false)), "05 02", setting("06")},
    {CALL(setBoardPower(true)), "84 01", setting("85")},
    {CALL(setBoardPower(false)), "84 02", setting("85")},
    {CALL(setBoardPowerAndScreenPower(true)), "25 01", setting("26")},
    {CALL(setBoardPowerAndScreenPower(false)), "25 00", setting("26")},
    {CALL(setMultiFunctionCardPower(0x102, -1, true)), "86 02 FF 01", setting("87")},
    {CALL(setMultiFunctionCardPower(1, 2, false)), "86 01 02 00", setting("87")},
    {CALL(setRelayPowers(true, false, false, true)), "9E 01 02 02 01", setting("9E")},
    {CALL(setRelayPowers(true, true, false, false)), "9E 01 01 02 02", setting("9E")},
    {CALL(getPowerState()), "EF 14 01", question("EF 14 01")},
    {CALL(getScreenStatus()), "BA",
     answers("-1", {{"BA 01", "1"}, {"BA 00", "2"}, {"BA FF 01", "2"}, {"BA", "-1", BadReply}})},
};

}  // namespace tovi::test
