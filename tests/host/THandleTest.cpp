#include "host/THandle.h"

#include <gmock/gmock.h>

#include <atomic>
#include <stdexcept>
#include <thread>
#include <vector>

using testing::StrEq;
using testing::ThrowsMessage;

namespace {

class Counted {
public:
    explicit Counted(std::atomic<int>& alive) : alive_(alive) { ++alive_; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    ~Counted() { --alive_; }

private:
    std::atomic<int>& alive_;
};

}  // namespace

TEST(THandle, ANullHandleRaisesItsError) {
    const THandle<std::string> null;
    EXPECT_TRUE(null.is_null());
    EXPECT_THAT([&] { return null->size(); },
                ThrowsMessage<std::runtime_error>(StrEq("null handle error")));
    EXPECT_THROW(static_cast<void>(*null), std::runtime_error);
}

TEST(THandle, CopiesInSeveralThreadsCountSafely) {
    std::atomic<int> alive = 0;
    {
        const THandle<Counted> shared = make_handle<Counted>(alive);
        std::vector<std::thread> threads;
        threads.reserve(4);
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([&shared] {
                for (int n = 0; n < 20000; ++n) {
                    // NOLINTNEXTLINE(*-unnecessary-copy-initialization)
                    const THandle<Counted> copy(shared);
                }
            });
        }
        for (auto& thread : threads) thread.join();
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}
