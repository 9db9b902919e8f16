Debut:
