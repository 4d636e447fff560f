#pragma once

namespace thisapp {

/// From now on the accessibility bus is told of what is typed into a masked field, or deleted there, as so
/// many bullets. The toolkit itself sends the characters, which screen readers speak. Called once, on the
/// GUI thread.
void maskTextOfSecretFields();

} // namespace thisapp
