#include "cli/Workers.h"

#include <system_error>
#include <utility>

Workers::~Workers() {
    {
        const std::scoped_lock lock(mutex_);
        ends_ = true;
    }
    changed_.notify_all();
    for (std::thread& thread : threads_) thread.join();
}

void Workers::add(std::function<void()> work) {
    if (threads_.size() < most_) begin_thread();
    {
        const std::scoped_lock lock(mutex_);
        waiting_.push_back(std::move(work));
    }
    changed_.notify_one();
}

void Workers::do_next() {
    if (!threads_.empty()) return;
    const std::function<void()> work = std::move(waiting_.front());
    waiting_.pop_front();
    work();
}

void Workers::begin_thread() {
    threads_.reserve(most_);
    try {
        threads_.emplace_back([this] { work(); });
    } catch (const std::system_error&) {
        most_ = threads_.size();  // these are all that are to be had
    }
}

void Workers::work() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ends_ || !waiting_.empty(); });
        if (ends_) return;
        const std::function<void()> work = std::move(waiting_.front());
        waiting_.pop_front();
        lock.unlock();
        work();
        lock.lock();
    }
}
