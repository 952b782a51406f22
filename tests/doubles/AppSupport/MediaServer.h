// Control of the simulated media server.
#pragma once

#import <Foundation/Foundation.h>

namespace brimsound::doubles {

/// Whether messages are answered; without a server they fail.
void setMediaServerRuns(bool);

/// The user info of each message since the last call of forgetMessages.
NSArray* sentMessages();
void forgetMessages();

} // namespace brimsound::doubles
