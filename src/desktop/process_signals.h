#pragma once

namespace qarn {

/// Opens /dev/null in the place of standard streams that are closed, so that no file or connection
/// that is opened later is taken for one of them.
void FillClosedStreams();

/// Has a file that would grow past what this process may write be an error like any other, EFBIG,
/// and not the end of the program.
void TellFullQuotas();

/// Has the signals that ask a program to end, SIGTERM, SIGHUP and SIGINT, be no more than noted
/// from now on, but for those that were ignored all along. Gives a descriptor that can be read from
/// once one has come. Throws std::system_error when there is none to be had.
int NoteEndSignals();

/// True once one has come.
bool IsAskedToEnd();

}  // namespace qarn
