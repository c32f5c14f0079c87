#include "reportnews.h"

ReportNews::ReportNews() = default;
ReportNews::~ReportNews() = default;

ReportNews& ReportNews::Instance()
{
    static ReportNews news;
    return news;
}
