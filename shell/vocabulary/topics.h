// The parts that the vocabulary is put together from, one source file each.
#pragma once

#include <span>

#include "shell/vocabulary/row.h"

namespace shell::topics {

using Rows = std::span<const Row>;

Rows accounts();        // charges, payments, invoices, statements
Rows appointments();    // the day book, birthdays, reminders
Rows card();            // the patient card and the ages that it shows
Rows cardiology();      // echocardiography, exercise test, angiography
Rows child();           // growth, vaccination, motor-mental development
Rows commands();        // menus, toolbars, buttons of every screen
Rows correspondence();  // envelopes, labels, letters, mail, station messages, dialling
Rows examination();     // the examination with its speciality pages, drugs, tests, operations
Rows eye();             // vision, glasses, contact lenses
Rows messages();        // what message boxes and input boxes say
Rows options();         // settings, passwords, backup
Rows pathology();       // the biopsy report
Rows pregnancy();       // pregnancies and their controls
Rows smoking();         // the smoking-cessation clinic
Rows specialities();    // the names that a window's caption takes

std::span<const Rows> all();

}  // namespace shell::topics
