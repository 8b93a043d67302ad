#pragma once

/// While one of these lives, memory is short: no single request may be large. Formulas may ask for gigabytes, by
/// repeating texts; this way what follows is tried too, and takes no time. One thread only.
class BoundedMemory {
 public:
  BoundedMemory();
  ~BoundedMemory();
  BoundedMemory(const BoundedMemory&) = delete;
  BoundedMemory& operator=(const BoundedMemory&) = delete;
};
