#include "localisation/list.h"

ListNode::~ListNode() {
    if (list_) list_->Remove(*this);
}

List::~List() {
    while (first_) Remove(*first_);
}

void List::PushFront(ListNode& node) {
    node.next_ = first_;
    node.list_ = this;
    (first_ ? first_->previous_ : last_) = &node;
    first_ = &node;
}

void List::Remove(ListNode& node) {
    for (auto* iterator = iterators_; iterator; iterator = iterator->next_iterator_)
        if (iterator->next_node_ == &node) iterator->next_node_ = node.next_;
    (node.previous_ ? node.previous_->next_ : first_) = node.next_;
    (node.next_ ? node.next_->previous_ : last_) = node.previous_;
    node.next_ = node.previous_ = nullptr;
    node.list_ = nullptr;
}

ListIterator::ListIterator(List const& list) : list_(list), next_node_(list.first_), next_iterator_(list.iterators_) {
    list_.iterators_ = this;
}

ListIterator::~ListIterator() {
    auto** link = &list_.iterators_;
    while (*link != this) link = &(*link)->next_iterator_;
    *link = next_iterator_;
}

ListNode* ListIterator::Next() {
    auto* node = next_node_;
    if (node) next_node_ = node->next_;
    return node;
}
