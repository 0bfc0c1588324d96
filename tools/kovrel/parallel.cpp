#include "parallel.h"

#include <cstring>

#include "session.h"

namespace kovrel_tool {

struct ParallelDecoder::Worker {
    Worker(const SessionSettings &settings, const std::function<uint64_t(const AstDataBlock &, BlockKeys &)> &kept)
        : out(nullptr), runner(settings, out) {
        runner.kept_records = kept;
    }
    OutBuffer out;  // never flushed: a batch's text is handed over whole
    BlockRunner runner;
    std::thread thread;
};

ParallelDecoder::ParallelDecoder(const SessionSettings &settings, unsigned threads, BatchWriter writer,
                                 std::function<uint64_t(const AstDataBlock &, BlockKeys &)> kept_records)
    : settings_(settings), writer_(std::move(writer)), kept_records_(std::move(kept_records)),
      limit_(2 * static_cast<size_t>(threads ? threads : 1) + 2) {
    for (unsigned i = 0; i < (threads ? threads : 1); ++i) {
        workers_.push_back(std::make_unique<Worker>(settings_, kept_records_));
        Worker &w = *workers_.back();
        w.thread = std::thread([this, &w] { work(w); });
    }
}

ParallelDecoder::~ParallelDecoder() {
    {
        std::lock_guard<std::mutex> lock(mutex_);
        stopping_ = true;
    }
    work_ready_.notify_all();
    for (auto &w : workers_) w->thread.join();
}

void ParallelDecoder::add(const std::string &name, const BlockTask &task, bool fresh) {
    if (filling_ && (fresh || filling_->name != name)) submit();
    if (!filling_) {
        filling_ = std::make_unique<Batch>();
        filling_->name = name;
        filling_->fresh = fresh;
    }
    Batch &b = *filling_;
    BlockTask copy = task;
    const size_t at = b.octets.size();
    if (task.slice.data && task.slice.size)
        b.octets.insert(b.octets.end(), task.slice.data, task.slice.data + task.slice.size);
    copy.slice.data = nullptr;  // the octets are at offsets[i] of octets
    b.tasks.push_back(copy);
    b.offsets.push_back(at);
    if (b.octets.size() >= settings_.batch_octets) {
        submit();
        write_ready(limit_);
    }
}

void ParallelDecoder::submit() {
    if (!filling_) return;
    std::unique_ptr<Batch> b = std::move(filling_);
    {
        std::lock_guard<std::mutex> lock(mutex_);
        // The best guess of the start: what the latest batch decoded left.
        if (!b->fresh) b->start = !order_.empty() && order_.back()->done ? order_.back()->end : written_;
        queue_.push_back(b.get());
        order_.push_back(std::move(b));
    }
    work_ready_.notify_one();
}

void ParallelDecoder::drain() {
    submit();
    write_ready(0);
}

void ParallelDecoder::work(Worker &worker) {
    for (;;) {
        Batch *b = nullptr;
        {
            std::unique_lock<std::mutex> lock(mutex_);
            work_ready_.wait(lock, [this] { return stopping_ || !queue_.empty(); });
            if (queue_.empty()) return;
            b = queue_.front();
            queue_.pop_front();
        }
        decode(worker, *b);
        {
            std::lock_guard<std::mutex> lock(mutex_);
            b->done = true;
        }
        batch_done_.notify_all();
    }
}

void ParallelDecoder::decode(Worker &w, Batch &b) {
    b.messages.clear();
    b.stats = std::make_unique<Stats>();
    w.out.clear();
    w.runner.decoder().remember(b.start.profile);
    if (video_items_decoded(settings_)) b.start.video.restore();
    w.runner.video = b.start.video;
    w.runner.on_message = [&](const std::string &text) { b.messages.emplace_back(w.out.size(), text); };
    for (size_t i = 0; i < b.tasks.size(); ++i) {
        BlockTask task = b.tasks[i];
        task.slice.data = b.octets.data() + b.offsets[i];
        w.runner.run(b.name, task, *b.stats);
    }
    w.runner.on_message = nullptr;
    b.out.swap_contents(w.out);
    w.out.clear();
    b.end.profile = w.runner.decoder().remembered();
    b.end.video = w.runner.video;
}

void ParallelDecoder::write_ready(size_t in_flight) {
    for (;;) {
        std::unique_ptr<Batch> owned;
        {
            std::unique_lock<std::mutex> lock(mutex_);
            if (order_.empty()) return;
            Batch *front = order_.front().get();
            if (!front->done) {
                if (order_.size() <= in_flight) return;
                batch_done_.wait(lock, [front] { return front->done; });
            }
            owned = std::move(order_.front());
            order_.pop_front();
        }
        Batch &b = *owned;
        const Start expected = b.fresh ? Start{} : written_;
        if (!(b.start == expected)) {
            // Started from a wrong guess: decoded again from the right start.
            if (!own_) own_ = std::make_unique<Worker>(settings_, kept_records_);
            b.start = expected;
            decode(*own_, b);
        }
        size_t at = 0;
        for (const auto &[pos, text] : b.messages) {
            if (pos > at) writer_.write(b.out.view().substr(at, pos - at));
            writer_.message(b.name, text);
            at = pos;
        }
        if (at < b.out.size()) writer_.write(b.out.view().substr(at));
        writer_.count(*b.stats);
        written_ = b.end;
    }
}

}  // namespace kovrel_tool
