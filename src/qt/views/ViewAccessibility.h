// What assistive technology is told of views that the toolkit describes wrongly.
#pragma once

class QWidget;

namespace tessel {

/// Options are radio buttons although the toolkit does not group them, a row of tabs has the name
/// that it was given, and a button with a list says so and opens it. Each of these views calls this
/// as it is made; the first call is enough.
void InstallViewAccessibility();

/// For a widget that has become one of another kind: the toolkit keeps what it once found.
void ForgetAccessibility(QWidget& widget);

}  // namespace tessel
