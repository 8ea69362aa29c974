#pragma once

namespace views {

/// Tells assistive programs about the views that Qt doesn't know or tells wrongly: a popup's name
/// is its own or its label's, never the item that it shows, and a number set through a slider or a
/// stepper counts as a person's act. Called by the views; the first call counts.
void installAccessibility();

} // namespace views
