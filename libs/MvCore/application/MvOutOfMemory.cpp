// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvOutOfMemory.h"

#include <QByteArray>
#include <QCoreApplication>

#include <cstdlib>
#include <exception>
#include <new>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray message;
int code = 1;
std::terminate_handler usual = nullptr;

void end()
{
    try {
        if (const std::exception_ptr exception = std::current_exception())
            std::rethrow_exception(exception);
    } catch (const std::bad_alloc &) {
        [[maybe_unused]] const auto written = ::write(STDERR_FILENO, message.constData(), size_t(message.size()));
        std::_Exit(code); // handlers of the exit would want memory
    } catch (...) {}
    usual();
}

} // namespace

void MvOutOfMemory::install(const QString &program, int exitCode)
{
    message = (program + u": "_s +
               QCoreApplication::translate("MvOutOfMemory",
                                           "Der Arbeitsspeicher reicht nicht aus. Das Programm wird beendet.") +
               u'\n')
                  .toLocal8Bit();
    code = exitCode;
    if (!usual)
        usual = std::set_terminate(end);
}
