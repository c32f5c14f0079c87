#ifndef SCHEMADOCTOR_HTMLRENDERING_H
#define SCHEMADOCTOR_HTMLRENDERING_H

#include <QByteArray>

#include "model/examination.h"

namespace schemadoctor {

/// The examination as one page for a browser: a tree to fold and to search, the findings beside it, the schema's text
/// below.
///
/// The page needs nothing but itself, no network either. Whatever the schema holds is text there: all of it is escaped,
/// and the page tells the browser to run no script but its own. A fragment "#q=word" opens it with that search.
///
/// A schema of more than 10,000 elements, 5,000 findings or 4 MiB of text is shown as far as that, and the page says
/// so.
QByteArray htmlOf(const Examination& examination);

} // namespace schemadoctor

#endif
