#pragma once
// The prior-instance test: one Tandry per user, from whatever folder it
// runs, because all of them share the one staging area. The claim is an
// abstract local socket: no file is touched, and the system drops it when
// the process dies. Only the user's own holder counts: another user who
// binds the name first (anyone can) is passed over by its credentials, and
// the claim takes the next of a few names.
#include <QString>

// True when another instance of this user already holds the claim.
// Otherwise the claim is taken for the life of this process and false is
// returned.
bool PrevInstance();
void ReleaseInstanceClaim();                      // for tests
void SetInstanceNameForTest(const QString& name); // empty: the user's own
// The abstract name of the n-th claim (0 first), for tests.
QByteArray InstanceClaimName(int n);
