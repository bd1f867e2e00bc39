#pragma once

class QAccessibleInterface;
class QObject;
class QString;

/// The property by which describeAs() says what a widget is: a QAccessible::Role.
inline constexpr char kAccessibleRole[] = "accessibleRole";

/// What assistive software is told of an object: for Described controls, buttons, sliders and what describeAs() names.
/// Null for all others, which the toolkit tells of. The toolkit asks with the name of the class, then with those of the
/// classes it is derived from; the interface is the toolkit's.
QAccessibleInterface *accessibleInterfaceOf(const QString &className, QObject *object);
