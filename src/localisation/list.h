#pragma once

// A doubly linked list that owns nothing: its nodes are objects that derive from ListNode and live where they like.
//
// A node leaves the list when it is destroyed. Walking by a ListIterator stays sound while nodes come and go. Not
// locked; one thread at a time.

class List;

class ListNode {
  public:
    ListNode() = default;
    ListNode(ListNode const&) = delete;
    ListNode& operator=(ListNode const&) = delete;

  protected:
    // Leaves the list, if it is in one.
    ~ListNode();

  private:
    friend class List;
    friend class ListIterator;
    ListNode* next_ = nullptr;
    ListNode* previous_ = nullptr;
    List* list_ = nullptr;
};

class List {
  public:
    List() = default;
    List(List const&) = delete;
    List& operator=(List const&) = delete;
    // Releases the nodes. No iterator may be left.
    ~List();

    // The node must be in no list.
    void PushFront(ListNode& node);
    // The node must be in this list.
    void Remove(ListNode& node);

  private:
    friend class ListIterator;
    ListNode* first_ = nullptr;
    ListNode* last_ = nullptr;
    mutable class ListIterator* iterators_ = nullptr;
};

// Visits the nodes from the first to the last. A node that is removed before its turn is not visited, one that is
// removed at its turn or added at the front changes nothing. The list must outlive it.
class ListIterator {
  public:
    explicit ListIterator(List const& list);
    ListIterator(ListIterator const&) = delete;
    ListIterator& operator=(ListIterator const&) = delete;
    ~ListIterator();

    // The next node, null after the last.
    ListNode* Next();

  private:
    friend class List;
    List const& list_;
    ListNode* next_node_;
    ListIterator* next_iterator_;
};
