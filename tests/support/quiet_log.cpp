// Tests exchange by the thousand; their records would only fill the disk.
#include <gtest/gtest.h>
#include <tovisdk/log.h>

namespace {

class QuietLog : public testing::Environment {
 public:
  void SetUp() override { tovi_set_log_level(4); }
};

const testing::Environment* const kQuietLog = testing::AddGlobalTestEnvironment(new QuietLog);

}  // namespace
