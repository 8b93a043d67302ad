#pragma once

namespace Command {

/// Makes the system refuse this process more memory than so many bytes in all, so that a formula which asks for the
/// impossible fails alone. A limit that is lower already stays. Does nothing in a build with sanitizers, whose
/// bookkeeping takes terabytes of address space.
void LimitAddressSpace(unsigned long long bytes);

}  // namespace Command
