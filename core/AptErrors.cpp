// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/AptErrors.h"

#include "core/RVLogger.h"

#include <apt-pkg/error.h>

AptErrors::AptErrors()
{
    _error->PushToStack();
}

AptErrors::~AptErrors()
{
    while (!_error->empty(GlobalError::DEBUG)) {
        std::string message;
        _error->PopMessage(message);
        RVLogger().log(4, "%s",
                       RVLogger::oneLine(QString::fromStdString(message).simplified()).constData());
    }
    _error->RevertToStack();
}

bool AptErrors::any() const
{
    return _error->PendingError();
}
