#include "host/THandle.h"

#include <gmock/gmock.h>

#include <atomic>
#include <stdexcept>
#include <thread>
#include <vector>

using testing::StrEq;
using testing::ThrowsMessage;

namespace {

struct Base {
    virtual ~Base() = default;
};

class Counted : public Base {
public:
    explicit Counted(std::atomic<int>& alive) : alive_(alive) { ++alive_; }
    ~Counted() override { --alive_; }
    int alive() const { return alive_; }

private:
    std::atomic<int>& alive_;
};

}  // namespace

TEST(THandle, ObjectDiesWithItsLastHandle) {
    std::atomic<int> alive = 0;
    {
        THandle<Counted> derived(new Counted(alive));
        const THandle<Base> base = derived;
        EXPECT_EQ(base, derived);
        derived = {};
        EXPECT_EQ(alive, 1);
        EXPECT_EQ(make_handle<Counted>(alive)->alive(), 2);
    }
    EXPECT_EQ(alive, 0);
}

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
        const THandle<Base> shared = make_handle<Counted>(alive);
        std::vector<std::thread> threads;
        threads.reserve(4);
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([&shared] {
                for (int n = 0; n < 20000; ++n) {
                    const THandle<Base> copy(shared);  // NOLINT(*-unnecessary-copy-initialization)
                }
            });
        }
        for (auto& thread : threads) thread.join();
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}
