#pragma once

#include "adapters/qt/accepted_socket.h"

namespace vigrel {

// Ends a connection so that what was written still reaches the peer: the writing side is shut first, and what
// the peer goes on sending is read and dropped until it ends its side too, or for two seconds. A connection
// that is simply closed with bytes unread is reset, and the reset can overtake the last replies.
void CloseLingering(SocketPtr socket);

}  // namespace vigrel
