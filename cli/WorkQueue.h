#pragma once

#include <deque>
#include <exception>
#include <functional>
#include <future>
#include <memory>
#include <utility>

#include "cli/Workers.h"

/// Work that threads do, and its results in the order in which it was begun.
template <class Result>
class WorkQueue {
public:
    /// `jobs` threads, 1 or more; with 1 each piece is done when its result is taken.
    explicit WorkQueue(unsigned int jobs) : most_(jobs > 1 ? jobs + 2 : 1), workers_(jobs) {}

    bool empty() const { return results_.empty(); }

    /// Whether enough has begun: a piece for each thread, and two that the next ones find when they
    /// are done while the one who takes the results is busy with another.
    bool is_full() const { return results_.size() >= most_; }

    void begin(std::function<Result()> work) {
        const auto task = std::make_shared<std::packaged_task<Result()>>(std::move(work));
        results_.push_back(task->get_future());
        try {
            workers_.add([task] { (*task)(); });
        } catch (...) {
            results_.pop_back();
            throw;
        }
    }

    /// Waits for the first result, not to be called when empty; throws what the work throws.
    Result take_first() {
        std::future<Result> first = std::move(results_.front());
        results_.pop_front();
        workers_.do_next();
        return first.get();
    }

    /// Waits for all results and leaves them out.
    void clear() {
        while (!empty()) {
            try {
                take_first();
            } catch (const std::exception&) {
                continue;  // as little wanted as a result
            }
        }
    }

private:
    std::size_t most_;
    std::deque<std::future<Result>> results_;
    Workers workers_;  // the last member, so that no work goes on without the others
};
