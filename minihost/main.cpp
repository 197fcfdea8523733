// minihost: a small host that loads a plug-in, gives it a scene and acts as its user.

#include "minihost/Run.h"

int main(int count, char** arguments) {
    const minihost::ParsedCommandLine parsed = minihost::parse_command_line(count, arguments);
    return parsed.request ? minihost::run(*parsed.request) : parsed.status;
}
