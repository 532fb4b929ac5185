"""Template texts and their placeholders."""

from pathlib import Path
from string import Template

FOLDER = Path(__file__).parent / "templates"


class TemplateError(Exception):
    """A wrong template. The text names it and what is wrong."""


def substitute(name, text, values):
    """The text with its placeholders filled. An unknown or broken placeholder raises TemplateError."""
    try:
        return Template(text).substitute(values)
    except KeyError as error:
        raise TemplateError(f"{name}: there is no value for the placeholder {error}") from error
    except ValueError as error:
        raise TemplateError(f"{name}: {error}") from error


def fill(template, **values):
    """The text of a template file with its placeholders filled."""
    return substitute(f"templates/{template}", (FOLDER / template).read_text(encoding="utf-8"), values)
