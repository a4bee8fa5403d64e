// Large arrays filled once (the index table of a million entries) cost a page fault per
// 4 KB page touched, a few microseconds each in a virtual machine: tens of milliseconds for
// an index. Where the system gives huge pages on request, asking for them makes it a few
// hundred faults. A hint only: nothing changes where it is not honoured.
#pragma once
#include <cstddef>

namespace lex {

// Asks for huge pages over the part of [p, p + n) that whole huge pages cover; to be called
// before the memory is first written.
void ConseilleGrandesPages(void* p, std::size_t n);

}  // namespace lex
