// What the record editors say before a row is deleted.
#pragma once

#include "cycles/integers.h"
#include "runtime/message.h"

// The last person and the last category stay.
Message lastPersonRefusal();
Message lastCategoryRefusal();

Message personDeletionQuestion();

// Names the category and how many people go with it.
Message categoryDeletionQuestion(Long people, const QString& category);
