// Names for assistive technology.
#pragma once

#include <QLineEdit>

namespace tessel {

/// Names a widget, and with it the text field inside it, where it has one: the toolkit names a box
/// and leaves its field without a name.
void NameForReaders(QWidget& widget, const QString& name);

/// The field gets a button that clears it, which has a name.
void OfferClearing(QLineEdit& field);

}  // namespace tessel
