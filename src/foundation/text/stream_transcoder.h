#pragma once

#include "foundation/text/invalid_text_encoding.h"
#include "foundation/text/text_receiver.h"

// The common base of the transcoders: takes text in From and hands it on, piece by piece, to a receiver of To.
//
// The receiver is borrowed and must outlive the transcoder. What was handed to it before an InvalidTextEncoding is not
// withdrawn; the transcoder can then be used again from Start. Used by one thread at a time.
template <class To, class From>
class StreamTranscoder : public UTextReceiver<From> {
  public:
    explicit StreamTranscoder(UTextReceiver<To>& receiver) : receiver_(receiver) {}

    void Start(From) override { receiver_.Start(To()); }
    void ReceiveEnd() override { receiver_.ReceiveEnd(); }

  protected:
    UTextReceiver<To>& Receiver() { return receiver_; }

  private:
    UTextReceiver<To>& receiver_;
};
