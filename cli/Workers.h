#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

/// Threads that do pieces of work, in the order in which they come.
class Workers {
public:
    /// `most` threads at most, which begin as work comes; none for 1, whose work is done by the
    /// caller.
    explicit Workers(unsigned int most) : most_(most > 1 ? most : 0) {}
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;
    /// Waits for the pieces that are being done; those that have not begun are left out.
    ~Workers();

    /// Has `work` done. It must not throw.
    void add(std::function<void()> work);

    /// Does the next piece here, if there are no threads to do it: with one job, or where the
    /// system refuses threads.
    void do_next();

private:
    void begin_thread();
    void work();

    std::size_t most_;
    std::vector<std::thread> threads_;
    std::mutex mutex_;  // of what follows
    std::condition_variable changed_;
    std::deque<std::function<void()>> waiting_;
    bool ends_ = false;
};
