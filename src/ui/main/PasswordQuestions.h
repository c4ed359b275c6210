// SPDX-License-Identifier: MIT
#pragma once

// Asks whether to set, change or remove the open album's password, asks for a new one twice, and
// does it. Tells what came of it; a failure leaves the album as it was.
void AskForNewPassword();
