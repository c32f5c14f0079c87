#ifndef XMLHELPER_XMLHELPER_H
#define XMLHELPER_XMLHELPER_H

// Everything that the library offers to its clients.

#include <xmlhelper/docbeginevent.h>
#include <xmlhelper/docendevent.h>
#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/elemendevent.h>
#include <xmlhelper/errorevent.h>
#include <xmlhelper/ixmlhelper.h>
#include <xmlhelper/reportdata.h>
#include <xmlhelper/reportnews.h>
#include <xmlhelper/schemamodel.h>
#include <xmlhelper/vcreporting.h>
#include <xmlhelper/xmlcreatereport.h>
#include <xmlhelper/xmlevent.h>
#include <xmlhelper/xmlhelperversion.h>
#include <xmlhelper/xmlreader.h>
#include <xmlhelper/xmlwriter.h>

#endif
