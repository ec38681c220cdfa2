#pragma once

#include <memory>
#include <utility>

// A first-in first-out list: singly linked nodes, each owning one element. Appending, taking the first element and
// exchanging two queues take constant time. Not locked.
template <class T>
class FiFoQueue {
  public:
    FiFoQueue() = default;
    FiFoQueue(FiFoQueue const&) = delete;
    FiFoQueue& operator=(FiFoQueue const&) = delete;
    ~FiFoQueue() { Clear(); }

    bool IsEmpty() const { return head_ == nullptr; }

    void Append(T value) {
        auto node = std::make_unique<Node>(Node{std::move(value), nullptr});
        Node* added = node.get();
        (tail_ ? tail_->next : head_) = std::move(node);
        tail_ = added;
    }

    // Removes and returns the first element. The queue must not be empty.
    T TakeFront() {
        auto node = std::move(head_);
        head_ = std::move(node->next);
        if (!head_) tail_ = nullptr;
        return std::move(node->value);
    }

    void Swap(FiFoQueue& other) noexcept {
        std::swap(head_, other.head_);
        std::swap(tail_, other.tail_);
    }

    // Frees node after node: a chain of owning pointers left to itself would recurse once an element.
    void Clear() {
        while (head_) head_ = std::move(head_->next);
        tail_ = nullptr;
    }

  private:
    struct Node {
        T value;
        std::unique_ptr<Node> next;
    };
    std::unique_ptr<Node> head_;
    Node* tail_ = nullptr;
};
