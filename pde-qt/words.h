#pragma once

namespace pdeqt {

/// Makes the words of the tab, and of what it says of servers, those of the panel's language, in a
/// program that may have another author's translations. Does so once for an application.
void installWords();

} // namespace pdeqt
