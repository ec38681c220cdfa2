#pragma once

#include <unistd.h>

// Closes the descriptor that a field holds when this object goes, and clears the field.
//
// The value 0 means "none": so the process's standard input is deliberately never closed.
class PipeCloser {
  public:
    // The field must outlive this object.
    explicit PipeCloser(int& descriptor) : descriptor_(descriptor) {}
    ~PipeCloser() {
        if (descriptor_ != 0) close(descriptor_);
        descriptor_ = 0;
    }
    PipeCloser(PipeCloser const&) = delete;
    PipeCloser& operator=(PipeCloser const&) = delete;

  private:
    int& descriptor_;
};
