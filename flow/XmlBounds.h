#pragma once

class QString;

/// Whether a text can be given to the XML reader without harm. A file from anywhere may be made to
/// exhaust the stack by its nesting, or the memory by entities or sheer numbers; no flow comes
/// near. Says nothing about whether the text is well-formed.
bool isXmlWithinBounds(const QString& xml);
