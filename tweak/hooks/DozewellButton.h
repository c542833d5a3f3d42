// The timer button of the Now Playing header: a class made at load time, because its superclass
// is the host's, and the property of the header that holds it.
#pragma once

// Creates DozewellButton under the host's routing button and gives it its members. Without that
// class there is no timer button.
void addDozewellButtonClass();

void addDozewellButtonProperty();
