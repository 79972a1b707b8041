#include "import/loop_search.h"

#include <algorithm>
#include <cstddef>

namespace velmora::imports {

namespace {

/// A search in depth that remembers the earliest node that can be reached from below: a piece is
/// on no loop where nothing below it reaches above it. Without recursion, since a drawing's run of
/// pieces may be as long as the file.
class LoopSearch {
  public:
    explicit LoopSearch(const PieceEnds& ends)
        : ends_(ends), order_(ends.node_count(), 0), earliest_(ends.node_count(), 0),
          looping_(ends.count() / 2, true) {}

    std::vector<bool> run() {
        for (std::uint32_t node = 0; node < ends_.node_count(); ++node) {
            if (order_[node] == 0)
                search(node);
        }
        return std::move(looping_);
    }

  private:
    struct Step {
        std::uint32_t node;
        End came_by; ///< the end in this node of the piece that led here
        std::size_t next = 0;
    };

    void enter(std::uint32_t node, End came_by) {
        order_[node] = earliest_[node] = ++visited_;
        steps_.push_back({node, came_by});
    }

    void search(std::uint32_t root) {
        enter(root, no_end);
        while (!steps_.empty()) {
            Step& step = steps_.back();
            const auto meeting = ends_.meeting(step.node);
            if (step.next < meeting.size())
                follow(step, meeting[step.next++]);
            else
                leave();
        }
    }

    void follow(const Step& step, End end) {
        if (end == step.came_by)
            return;
        const std::uint32_t there = ends_.node(other_end(end));
        if (order_[there] == 0)
            return enter(there, other_end(end));
        earliest_[step.node] = std::min(earliest_[step.node], order_[there]);
    }

    void leave() {
        const Step done = steps_.back();
        steps_.pop_back();
        if (steps_.empty())
            return;
        const std::uint32_t above = steps_.back().node;
        earliest_[above] = std::min(earliest_[above], earliest_[done.node]);
        if (earliest_[done.node] > order_[above])
            looping_[done.came_by / 2] = false;
    }

    const PieceEnds& ends_;
    std::vector<std::uint32_t> order_; ///< of the visit, from 1; 0: not visited
    std::vector<std::uint32_t> earliest_;
    std::vector<bool> looping_;
    std::vector<Step> steps_;
    std::uint32_t visited_ = 0;
};

} // namespace

std::vector<bool> pieces_on_loops(const PieceEnds& ends) {
    return LoopSearch(ends).run();
}

} // namespace velmora::imports
